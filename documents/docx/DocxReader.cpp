// SPDX-License-Identifier: MIT
#include "documents/docx/DocxReader.h"

#include "documents/docx/FlatDocument.h"
#include "documents/docx/PackageDocument.h"

#include <new>
#include <utility>

Result<AttributedString, DocumentError> readDocx(QByteArrayView bytes, const ChunkReader &readChunk)
{
    try {
        if (looksLikeFlatWordDocument(bytes))
            return DocumentError(DocumentError::Cause::FlatWordDocument, DocumentKind::WordDocument);
        ReadAllowance allowance;
        Result<AttributedString, DocumentError::Cause> text =
            readPackageDocument(bytes, allowance, readChunk);
        if (text)
            return std::move(text).value();
        return DocumentError(text.error(), DocumentKind::WordDocument);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::WordDocument);
    }
}
