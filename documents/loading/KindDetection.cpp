// SPDX-License-Identifier: MIT
#include "documents/loading/KindDetection.h"

#include "documents/docx/DocxReader.h"
#include "documents/html/HtmlReader.h"
#include "documents/rtf/RtfReader.h"
#include "documents/rtfd/RtfdReader.h"

#include <QMimeDatabase>

#include <optional>

namespace {

/// The header of PDF, and one of the objects that any file has.
bool looksLikePdf(QByteArrayView bytes)
{
    constexpr QByteArrayView header("%PDF-");
    return bytes.startsWith(header) && bytes.size() > header.size() && bytes[header.size()] >= '1'
        && bytes[header.size()] <= '9' && bytes.contains(" obj");
}

/// Absent where the name tells nothing.
std::optional<DocumentKind> kindByName(const QByteArray &path)
{
    const QList<QMimeType> types = QMimeDatabase().mimeTypesForFileName(QString::fromLocal8Bit(path));
    if (types.isEmpty())
        return std::nullopt;
    for (const QMimeType &type : types) {
        if (type.inherits(QStringLiteral("text/html"))
            || type.inherits(QStringLiteral("application/xhtml+xml")))
            return DocumentKind::Html;
        if (type.inherits(
                QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.document")))
            return DocumentKind::WordDocument;
        if (type.inherits(QStringLiteral("application/pdf")))
            return DocumentKind::Pdf;
    }
    return DocumentKind::PlainText;
}

/// The beginning of every compound file: documents of Word 97 to 2003, and encrypted ones of Word.
bool looksLikeCompoundFile(QByteArrayView bytes)
{
    return bytes.startsWith("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
}

} // namespace

DocumentKind kindOfDocument(const QByteArray &path, QByteArrayView bytes)
{
    if (looksLikeRtf(bytes))
        return DocumentKind::Rtf;
    if (looksLikeFlatRtfd(bytes))
        return DocumentKind::Rtfd;
    if (looksLikePdf(bytes))
        return DocumentKind::Pdf;
    if (looksLikeCompoundFile(bytes))
        return DocumentKind::WordDocument;
    if (const std::optional<DocumentKind> kind = kindByName(path))
        return *kind;
    if (looksLikeHtml(bytes))
        return DocumentKind::Html;
    return looksLikeDocx(bytes) ? DocumentKind::WordDocument : DocumentKind::PlainText;
}
