// SPDX-License-Identifier: MIT
#include "documents/reading/KindDetection.h"

#include "documents/docx/FlatDocument.h"
#include "documents/html/HtmlSignature.h"
#include "documents/reading/BinaryKind.h"
#include "documents/reading/TextBytes.h"
#include "documents/rtf/RtfSignature.h"
#include "documents/rtfd/RtfdPackage.h"
#include "platform/text_encoding/EncodingConverter.h"
#include "platform/text_encoding/TextEncoding.h"

#include <QCoreApplication>
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
constexpr std::array kindsToldByBytes{DocumentKind::PlainText, DocumentKind::Rtf, DocumentKind::Rtfd};

std::optional<DocumentKind> kindOfType(const QMimeType &type)
{
    for (quint32 number = 1; number <= static_cast<quint32>(lastDocumentKind); ++number) {
        const auto kind = static_cast<DocumentKind>(number);
        const QStringList names = mimeTypes(kind);
        if (std::ranges::find(kindsToldByBytes, kind) == kindsToldByBytes.end()
            && std::ranges::any_of(names, [&](const QString &name) { return type.inherits(name); }))
            return kind;
    }
    return std::nullopt;
}

/// Absent where the MIME database does not know the name.
std::optional<DocumentKind> kindByName(const QByteArray &path)
{
    const QList<QMimeType> types = QMimeDatabase().mimeTypesForFileName(QString::fromLocal8Bit(path));
    if (types.isEmpty())
        return std::nullopt;
    for (const QMimeType &type : types) {
        if (const std::optional<DocumentKind> kind = kindOfType(type))
            return kind;
    }
    return DocumentKind::PlainText;
}

/// From the first element of an XML document on; empty for other bytes.
QByteArrayView xmlRoot(QByteArrayView bytes)
{
    if (!bytes.startsWith("<?xml"))
        return {};
    qsizetype at = bytes.indexOf('<');
    while (at >= 0 && at + 1 < bytes.size() && (bytes[at + 1] == '?' || bytes[at + 1] == '!')) {
        const bool isComment = bytes.sliced(at).startsWith("<!--");
        at = bytes.indexOf(isComment ? "-->" : ">", at);
        at = at < 0 ? at : bytes.indexOf('<', at);
    }
    return at < 0 ? QByteArrayView() : bytes.sliced(at);
}

/// The first bytes of a text, in UTF-8 if its byte order mark announces another encoding of Unicode. Enough
/// for the root element of an office document, which declares many namespaces.
QByteArray startOfText(QByteArrayView bytes)
{
    constexpr qsizetype startLength = 32'768;
    const QByteArrayView start = bytes.first(std::min(bytes.size(), startLength));
    const std::optional<TextEncoding> marked = markedEncoding(start);
    return marked ? decodeText(start.sliced(marked->markLength), marked->name).toUtf8() : start.toByteArray();
}

/// The type that an office document in one XML file declares; empty for other bytes.
QByteArray flatDocumentType(QByteArrayView bytes)
{
    const QByteArrayView root = xmlRoot(bytes);
    constexpr QByteArrayView attribute(" office:mimetype=");
    const QByteArrayView tag = root.first(std::max<qsizetype>(root.indexOf('>'), 0));
    const qsizetype at = tag.indexOf(attribute);
    const qsizetype quote = at + attribute.size();
    if (!tag.startsWith("<office:document") || at < 0 || quote == tag.size())
        return {};
    const qsizetype end = tag.indexOf(tag[quote], quote + 1);
    return end < 0 ? QByteArray() : tag.sliced(quote + 1, end - quote - 1).toByteArray();
}

/// Documents of which the text would be counted with their markup, and pictures in letters. Absent for other
/// bytes.
std::optional<DocumentError> refusalOfXml(QByteArrayView bytes)
{
    struct Format {
        const char *root;
        const char *description;
    };
    static constexpr std::array formats{
        Format{"<FictionBook",
            QT_TRANSLATE_NOOP(
                "documents/reading", "an e-book in the format FictionBook; convert it to EPUB")},
        Format{"<abiword",
            QT_TRANSLATE_NOOP("documents/reading", "an AbiWord document; save it as .odt or RTF")},
        Format{"<uof:UOF",
            QT_TRANSLATE_NOOP(
                "documents/reading", "a document in the Uniform Office Format; save it as .odt or .docx")},
    };
    const QByteArrayView root = xmlRoot(bytes);
    const auto *const format = std::ranges::find_if(
        formats, [&](const Format &candidate) { return root.startsWith(candidate.root); });
    if (format == formats.end())
        return std::nullopt;
    return unsupportedFormat(QString::fromLatin1(format->description));
}

DocumentKind kindOfText(const QByteArray &path, QByteArrayView bytes)
{
    if (const std::optional<DocumentKind> kind = kindByName(path))
        return *kind;
    return looksLikeHtml(bytes) ? DocumentKind::Html : DocumentKind::PlainText;
}

bool isText(QByteArrayView bytes)
{
    const TextEvidence evidence = textEvidence(bytes);
    return evidence == TextEvidence::Clear || (evidence == TextEvidence::Likely && !isKnownAsBinary(bytes));
}

} // namespace

Result<DocumentKind, DocumentError> kindOfDocument(const QByteArray &name, QByteArrayView bytes)
{
    const QByteArray path(name.constData()); // QMimeDatabase crashes over some names with a NUL byte
    if (looksLikeRtf(bytes))
        return DocumentKind::Rtf;
    if (looksLikeFlatRtfd(bytes))
        return DocumentKind::Rtfd;
    if (looksLikePdf(bytes))
        return DocumentKind::Pdf;
    if (!isText(bytes))
        return kindOfBinary(path, bytes);
    if (looksLikeFlatWordDocument(bytes))
        return DocumentKind::WordDocument;
    const QByteArray start = startOfText(bytes);
    if (const QByteArray type = flatDocumentType(start); !type.isEmpty())
        return kindOfDeclaredType(type);
    if (const std::optional<DocumentError> refusal = refusalOfXml(start))
        return *refusal;
    return kindOfText(path, bytes);
}
