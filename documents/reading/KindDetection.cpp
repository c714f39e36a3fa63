// SPDX-License-Identifier: MIT
#include "documents/reading/KindDetection.h"

#include "documents/docx/DocxReader.h"
#include "documents/docx/FlatDocument.h"
#include "documents/epub/EpubReader.h"
#include "documents/html/HtmlSignature.h"
#include "documents/odt/OdtReader.h"
#include "documents/rtf/RtfSignature.h"
#include "documents/rtfd/RtfdPackage.h"

#include <QMimeDatabase>

#include <algorithm>
#include <array>
#include <optional>

namespace {

/// The header of PDF and at least one object, which every file has.
bool looksLikePdf(QByteArrayView bytes)
{
    constexpr QByteArrayView header("%PDF-");
    return bytes.startsWith(header) && bytes.size() > header.size() && bytes[header.size()] >= '1'
        && bytes[header.size()] <= '9' && bytes.contains(" obj");
}

/// The name of an RTF or an RTFD file decides nothing: their bytes do.
constexpr std::array kindsToldByName{DocumentKind::Html, DocumentKind::WordDocument, DocumentKind::Pdf,
    DocumentKind::OpenDocument, DocumentKind::Epub};

bool inherits(const QMimeType &type, DocumentKind kind)
{
    const QStringList names = mimeTypes(kind);
    return std::any_of(names.begin(), names.end(), [&](const QString &name) { return type.inherits(name); });
}

/// Absent where the MIME database does not know the name.
std::optional<DocumentKind> kindByName(const QByteArray &path)
{
    const QList<QMimeType> types = QMimeDatabase().mimeTypesForFileName(QString::fromLocal8Bit(path));
    if (types.isEmpty())
        return std::nullopt;
    for (const QMimeType &type : types) {
        for (const DocumentKind kind : kindsToldByName) {
            if (inherits(type, kind))
                return kind;
        }
    }
    return DocumentKind::PlainText;
}

/// The start of every compound file: documents of Word 97 to 2003, and encrypted Word documents.
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
    if (looksLikeOpenDocument(bytes))
        return DocumentKind::OpenDocument;
    if (looksLikeCompoundFile(bytes) || looksLikeFlatWordDocument(bytes))
        return DocumentKind::WordDocument;
    if (looksLikeEpub(bytes))
        return DocumentKind::Epub;
    if (const std::optional<DocumentKind> kind = kindByName(path))
        return *kind;
    if (looksLikeHtml(bytes))
        return DocumentKind::Html;
    return looksLikeDocx(bytes) ? DocumentKind::WordDocument : DocumentKind::PlainText;
}
