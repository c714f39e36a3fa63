// SPDX-License-Identifier: MIT
// CountStamp tells whether a document and the rules are as they were when it was counted, so that it is not
// counted again.
// Thread: any.
#pragma once

#include <QByteArray>

/// To be taken before the document is read. Empty if there is no file, and for a file that was modified so
/// short a time ago that a later change may have the same time stamp.
QByteArray countStamp(const QByteArray &path);
