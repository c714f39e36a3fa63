// SPDX-License-Identifier: MIT
#include "pdf_reader/PdfPages.h"

#include <QBuffer>
#include <QPdfDocument>
#include <QPdfSelection>

namespace {

constexpr QByteArrayView signature("%PDF-");
constexpr qsizetype signatureReach = 1024; // bytes; what readers of PDF look through

/// Stands where a hyphen divides a word at the end of a line (PDFium's own mark, no character).
constexpr char16_t dividingHyphen = 0xFFFE;
constexpr char16_t softHyphen = 0x00AD;

PdfError causeOf(QPdfDocument::Error error, QByteArrayView bytes)
{
    if (error == QPdfDocument::Error::IncorrectPassword
        || error == QPdfDocument::Error::UnsupportedSecurityScheme)
        return PdfError::Encrypted;
    const QByteArrayView start = bytes.first(std::min(bytes.size(), signatureReach));
    return start.contains(signature) ? PdfError::Damaged : PdfError::NotPdf;
}

} // namespace

std::optional<PdfError> forEachPdfPage(QByteArrayView bytes, const TakePage &take)
{
    QByteArray contents = QByteArray::fromRawData(bytes.data(), bytes.size());
    QBuffer file(&contents);
    if (contents.isEmpty() || !file.open(QIODevice::ReadOnly))
        return PdfError::NotPdf;
    QPdfDocument document;
    document.load(&file);
    if (document.status() != QPdfDocument::Status::Ready)
        return causeOf(document.error(), bytes);
    const int pageCount = document.pageCount();
    if (pageCount == 0)
        return PdfError::Damaged;
    for (int page = 0; page < pageCount; ++page) {
        QString text = document.getAllText(page).text();
        if (!take(text.replace(QChar(dividingHyphen), QChar(softHyphen))))
            break;
    }
    return std::nullopt;
}
