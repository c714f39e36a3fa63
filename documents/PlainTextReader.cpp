// SPDX-License-Identifier: MIT
#include "documents/PlainTextReader.h"

#include "documents/Lengths.h"
#include "platform/text_encoding/DeclaredEncoding.h"
#include "platform/text_encoding/EncodingConverter.h"
#include "platform/text_encoding/TextEncoding.h"

#include <new>

Result<PlainText, DocumentError> readPlainText(QByteArrayView bytes, const QByteArray &charset)
{
    if (bytes.size() > maxDocumentLength)
        return DocumentError(DocumentError::Cause::TooLong, DocumentKind::PlainText);
    try {
        const TextEncoding encoding = encodingOfPlainText(bytes, charset);
        return PlainText{decodeText(bytes.sliced(encoding.markLength), encoding.name), encoding.name};
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::PlainText);
    }
}
