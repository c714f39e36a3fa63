// SPDX-License-Identifier: MIT
// Turning bytes into text by the rules of one encoding.
// Thread: any.
#pragma once

#include <QByteArrayView>
#include <QString>

/// What is no character in the encoding becomes U+FFFD, also at a cut end; a byte order mark is a character
/// like any other. Takes time proportional to the length. Throws std::bad_alloc where the memory is short.
/// encoding: a name that ICU knows, or johabEncoding.
/// bytes: at most INT32_MAX.
QString decodedText(QByteArrayView bytes, const char *encoding);
