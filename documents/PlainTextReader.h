// SPDX-License-Identifier: MIT
// PlainTextReader turns the bytes of a plain text into text. Detecting its encoding is left to
// platform/text_encoding.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

struct PlainText {
    QString text; ///< without a leading byte order mark
    QByteArray encoding; ///< "UTF-8", "UTF-16LE", "Shift_JIS", "windows-1252" …
};

/// Accepts any sequence of bytes: NUL bytes become NUL characters, bytes that are no character in the
/// encoding U+FFFD. Fails as TooLong or NotEnoughMemory. charset: of a MIME type. A byte order mark overrides
/// it. Ignored if it is empty or not listed in EncodingLabels.h, or if it is UTF-8 and the bytes are not.
Result<PlainText, DocumentError> readPlainText(QByteArrayView bytes, const QByteArray &charset = {});
