// SPDX-License-Identifier: MIT
// RtfSignature recognizes RTF by its first bytes, and links no reader.
// Thread: any.
#pragma once

#include <QByteArrayView>

/// Whether the bytes begin with "{\rtf", or with a UTF-8 byte order mark or white space before it, which some
/// editors and mail programs add.
bool looksLikeRtf(QByteArrayView bytes);

/// The bytes without that byte order mark and white space.
QByteArrayView rtfWithoutLead(QByteArrayView bytes);
