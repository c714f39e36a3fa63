// SPDX-License-Identifier: MIT
// PlainTextReader turns the bytes of a plain text, in whatever encoding, into text. Which encoding it is,
// platform/text_encoding finds out.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

struct PlainText {
    QString text; ///< without a byte order mark at its start
    QByteArray encoding; ///< "UTF-8", "UTF-16LE", "Shift_JIS", "windows-1252" …
};

/// Every sequence of bytes is a text: NUL bytes are NUL characters, what its encoding has no meaning for is
/// U+FFFD, and the last line need not end.
Result<PlainText, DocumentError> readPlainText(QByteArrayView bytes);
/// The same where the charset parameter of a MIME type says the encoding. A byte order mark is believed over
/// it, and a charset that is empty or not listed (EncodingLabels.h) says nothing, nor does UTF-8 that the
/// bytes contradict.
Result<PlainText, DocumentError> readPlainText(QByteArrayView bytes, const QByteArray &charset);
