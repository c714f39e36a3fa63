// SPDX-License-Identifier: MIT
#include "document_reader/PdfDocument.h"

#include "document_reader/PdfPages.h"

Result<AttributedString, DocumentError> readPdfDocument(QByteArrayView bytes, qsizetype maxLength)
{
    QString text;
    bool isTooLong = false;
    const std::optional<DocumentError::Cause> failure = forEachPdfPage(bytes, [&](const QString &page) {
        isTooLong = page.size() > maxLength - text.size();
        if (!isTooLong)
            text += page;
        return !isTooLong;
    });
    if (isTooLong)
        return DocumentError(DocumentError::Cause::TooComplex, DocumentKind::Pdf);
    if (failure)
        return DocumentError(*failure, DocumentKind::Pdf);
    return AttributedString(text);
}
