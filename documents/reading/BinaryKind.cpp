// SPDX-License-Identifier: MIT
#include "documents/reading/BinaryKind.h"

#include "documents/docx/CompoundFile.h"
#include "documents/reading/TypeDescription.h"
#include "documents/reading/ZipListing.h"

#include <QCoreApplication>
#include <QMimeDatabase>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

using Cause = DocumentError::Cause;
using Kind = Result<DocumentKind, DocumentError>;

/// Bytes; magic numbers are at the start of a file.
constexpr qsizetype magicLength = 65'536;

DocumentError notText(const QString &description)
{
    DocumentError error(Cause::NotText, DocumentKind::PlainText);
    error.format = description;
    return error;
}

DocumentError spreadsheet()
{
    return unsupportedFormat(
        QStringLiteral(QT_TRANSLATE_NOOP("documents/reading", "a spreadsheet; save it as .csv or PDF")));
}

DocumentError presentation()
{
    return unsupportedFormat(
        QStringLiteral(QT_TRANSLATE_NOOP("documents/reading", "a presentation; save it as PDF")));
}

DocumentError drawing()
{
    return unsupportedFormat(
        QStringLiteral(QT_TRANSLATE_NOOP("documents/reading", "a drawing; save it as PDF")));
}

QMimeType typeByMagic(QByteArrayView bytes)
{
    const QByteArrayView start = bytes.first(std::min(bytes.size(), magicLength));
    return QMimeDatabase().mimeTypeForData(QByteArray::fromRawData(start.data(), start.size()));
}

bool isTextType(const QMimeType &type)
{
    return type.inherits(QStringLiteral("text/plain"));
}

/// The type that the name says, if it is a special case of the general one: an archive of Java classes is a
/// ZIP archive. Otherwise the general one.
QMimeType refinedByName(const QMimeType &general, const QByteArray &path)
{
    for (const QMimeType &type : QMimeDatabase().mimeTypesForFileName(QString::fromLocal8Bit(path))) {
        if (type.inherits(general.name()) && !isTextType(type))
            return type;
    }
    return general;
}

QMimeType zipType()
{
    return QMimeDatabase().mimeTypeForName(QStringLiteral("application/zip"));
}

QByteArrayView suffixOf(const QByteArray &path)
{
    const qsizetype dot = path.lastIndexOf('.');
    return dot < 0 ? QByteArrayView() : QByteArrayView(path).sliced(dot + 1);
}

bool hasSuffix(const QByteArray &path, const char *suffix)
{
    return suffixOf(path).compare(suffix, Qt::CaseInsensitive) == 0;
}

// Word before 2007 wrote compound files, and still other formats before 1994.
bool isOlderWordDocument(QByteArrayView bytes)
{
    static constexpr std::array<std::string_view, 7> magicNumbers{{
        {"\xDB\xA5\x2D\x00", 4}, // Word 2 for Windows
        {"\x9B\xA5\x21\x00", 4}, // Word 1 for Windows
        {"\xFE\x37\x00\x1C", 4}, // Word 4 for the Mac
        {"\xFE\x37\x00\x23", 4}, // Word 5 for the Mac
        {"\xFE\x32\x00\x00", 4}, // Word 1 for the Mac
        {"\x31\xBE\x00\x00", 4}, // Word for DOS, Write
        {"\x32\xBE\x00\x00", 4}, // Write with embedded objects
    }};
    return std::ranges::any_of(magicNumbers, [&](std::string_view magic) { return bytes.startsWith(magic); });
}

Kind kindOfCompoundFile(const QByteArray &path, QByteArrayView bytes)
{
    // A Word document may have a spreadsheet inside.
    if (hasStream(bytes, "WordDocument") || hasStream(bytes, "EncryptedPackage"))
        return DocumentKind::WordDocument;
    if (hasStream(bytes, "Workbook") || hasStream(bytes, "Book"))
        return spreadsheet();
    if (hasStream(bytes, "PowerPoint Document"))
        return presentation();
    const QMimeType storage = QMimeDatabase().mimeTypeForName(QStringLiteral("application/x-ole-storage"));
    const QList<QMimeType> types = QMimeDatabase().mimeTypesForFileName(QString::fromLocal8Bit(path));
    const bool isNamedAsWord = std::ranges::any_of(types, [](const QMimeType &type) {
        return type.inherits(QStringLiteral("application/msword"))
            || kindOfMimeType(type.name()) == DocumentKind::WordDocument;
    });
    if (isNamedAsWord)
        return DocumentKind::WordDocument; // a damaged one
    return kindOfDeclaredType(refinedByName(storage, path).name().toLatin1());
}

bool hasFolder(const ZipListing &package, QByteArrayView folder)
{
    return std::ranges::any_of(
        package.names, [&](const QByteArray &name) { return name.startsWith(folder); });
}

/// Of a package of the Open Packaging Conventions. Absent if it is none, or none of an office program.
std::optional<Kind> kindOfOfficePackage(const ZipListing &package)
{
    if (!package.names.contains("[content_types].xml"))
        return std::nullopt;
    if (hasFolder(package, "word/"))
        return DocumentKind::WordDocument;
    if (hasFolder(package, "xl/"))
        return spreadsheet();
    if (hasFolder(package, "ppt/"))
        return presentation();
    if (hasFolder(package, "visio/"))
        return drawing();
    // The main part of a Word document may be in any folder.
    const auto isMainPart = [](const QByteArray &name) {
        return name == "document.xml" || name.endsWith("/document.xml");
    };
    return std::ranges::any_of(package.names, isMainPart) ? std::optional<Kind>(DocumentKind::WordDocument)
                                                          : std::nullopt;
}

/// Of packages that should declare their type in a first entry, but do not.
std::optional<Kind> kindOfUndeclaredPackage(const ZipListing &package, const QByteArray &path)
{
    if (package.names.contains("meta-inf/container.xml"))
        return kindOfDeclaredType("application/epub+zip");
    if (package.names.contains("meta-inf/manifest.xml") && package.names.contains("content.xml")) {
        const QMimeType named = refinedByName(zipType(), path);
        return kindOfDeclaredType(
            named == zipType() ? "application/vnd.oasis.opendocument.text" : named.name().toLatin1());
    }
    if (!package.names.contains("index/document.iwa") && !hasSuffix(path, "pages"))
        return std::nullopt;
    if (hasSuffix(path, "numbers"))
        return spreadsheet();
    if (hasSuffix(path, "key"))
        return presentation();
    return unsupportedFormat(QStringLiteral(
        QT_TRANSLATE_NOOP("documents/reading", "a .pages document; export it as .docx or RTF")));
}

Kind kindOfZip(const ZipListing &package, const QByteArray &path)
{
    if (!package.declaredType.isEmpty())
        return kindOfDeclaredType(package.declaredType);
    if (const std::optional<Kind> kind = kindOfOfficePackage(package))
        return *kind;
    if (const std::optional<Kind> kind = kindOfUndeclaredPackage(package, path))
        return *kind;
    return kindOfDeclaredType(refinedByName(zipType(), path).name().toLatin1());
}

} // namespace

DocumentError unsupportedFormat(const QString &format)
{
    DocumentError error(Cause::UnsupportedFormat, DocumentKind::PlainText);
    error.format = format;
    return error;
}

Kind kindOfDeclaredType(const QByteArray &type)
{
    const QMimeType known = QMimeDatabase().mimeTypeForName(QString::fromLatin1(type));
    for (qint32 number = 1; number <= static_cast<qint32>(lastDocumentKind); ++number) {
        const auto kind = static_cast<DocumentKind>(number);
        const QStringList names = mimeTypes(kind);
        if (std::ranges::any_of(names, [&](const QString &name) {
                return name == QLatin1String(type)
                    || (kind != DocumentKind::PlainText && known.inherits(name));
            }))
            return kind;
    }
    if (type.startsWith("application/vnd.oasis.opendocument.text-")) // of a web page, of master documents
        return DocumentKind::OpenDocument;
    if (type.contains("spreadsheet") || type.contains("ms-excel") || type.contains("xml.calc"))
        return spreadsheet();
    if (type.contains("presentation") || type.contains("powerpoint") || type.contains("xml.impress"))
        return presentation();
    if (type.contains("opendocument.graphics") || type.contains("xml.draw") || type.contains("visio"))
        return drawing();
    if (type.contains("xml.writer"))
        return unsupportedFormat(QStringLiteral(QT_TRANSLATE_NOOP(
            "documents/reading", "a document of an older office program; save it as .docx or RTF")));
    return notText(known.isValid() ? typeDescription(known)
                                   : QCoreApplication::translate("documents/reading", "a binary file"));
}

Kind kindOfBinary(const QByteArray &path, QByteArrayView bytes)
{
    if (const std::optional<ZipListing> package = listZip(bytes))
        return kindOfZip(*package, path);
    if (isCompoundFile(bytes))
        return kindOfCompoundFile(path, bytes);
    if (isOlderWordDocument(bytes))
        return DocumentError(Cause::OldFormat, DocumentKind::WordDocument);
    if (bytes.startsWith("\xFFWPC"))
        return unsupportedFormat(QStringLiteral(
            QT_TRANSLATE_NOOP("documents/reading", "a WordPerfect document; save it as .docx or RTF")));
    const QMimeType magic = typeByMagic(bytes);
    if (isTextType(magic) || !magic.isValid())
        return notText(QCoreApplication::translate("documents/reading", "a binary file"));
    return kindOfDeclaredType(refinedByName(magic, path).name().toLatin1());
}

bool isKnownAsBinary(QByteArrayView bytes)
{
    const QMimeType type = typeByMagic(bytes);
    return type.isValid() && !type.isDefault() && !isTextType(type);
}
