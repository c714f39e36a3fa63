// SPDX-License-Identifier: MIT
// What of a text tells its encoding: the stretches around its bytes above 127.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// Each stretch on a line of its own: bytes above 127 with a few words of ASCII on either side, but nothing
/// of a tag of HTML or XML. Long texts are cut at 16 KiB of stretches. above127: the position of the first
/// byte above 127.
QByteArray stretchesAround127(QByteArrayView bytes, qsizetype above127);
