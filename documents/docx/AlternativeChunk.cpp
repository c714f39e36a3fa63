// SPDX-License-Identifier: MIT
#include "documents/docx/AlternativeChunk.h"

#include "documents/html/HtmlReader.h"
#include "documents/rtf/RtfReader.h"

#include <QHash>

#include <algorithm>

namespace {

/// The page of a web archive (MIME, RFC 2045, 2046 and 2557: .mht), the form in which some programs store web
/// pages in Word documents.
struct WebArchivePage {
    QByteArray contents; ///< decoded
    QByteArray charset; ///< empty if the archive does not name one
};

constexpr int maxPartDepth = 4; // of nested multiparts
constexpr qsizetype maxHeaderLength = 65'536; // bytes, of one part

struct Part {
    QHash<QByteArray, QByteArray> headers; // names in lower case
    QByteArrayView body;
};

/// Removes the first line from a text and returns it without its line end.
QByteArrayView takeLine(QByteArrayView &text)
{
    const qsizetype end = text.indexOf('\n');
    QByteArrayView line = end < 0 ? text : text.first(end);
    text = end < 0 ? QByteArrayView() : text.sliced(end + 1);
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}

Part partOf(QByteArrayView text)
{
    Part part;
    QByteArray name;
    const qsizetype length = text.size();
    while (!text.isEmpty() && length - text.size() < maxHeaderLength) {
        const QByteArrayView line = takeLine(text);
        if (line.isEmpty())
            break;
        if (line.front() == ' ' || line.front() == '\t') { // continues the line before
            part.headers[name] += ' ' + line.toByteArray().trimmed();
            continue;
        }
        const qsizetype colon = line.indexOf(':');
        name = line.first(std::max<qsizetype>(colon, 0)).toByteArray().trimmed().toLower();
        part.headers.insert(name, line.sliced(colon + 1).toByteArray().trimmed());
    }
    part.body = text;
    return part;
}

QByteArray typeOf(const Part &part)
{
    const QByteArray value = part.headers.value("content-type");
    const qsizetype end = value.indexOf(';');
    return (end < 0 ? value : value.first(end)).trimmed().toLower();
}

/// The length of the first parameter: up to a semicolon outside of quotation marks.
qsizetype firstParameterLength(QByteArrayView parameters)
{
    bool isQuoted = false;
    qsizetype length = 0;
    for (; length < parameters.size() && (isQuoted || parameters[length] != ';'); ++length)
        if (parameters[length] == '"')
            isQuoted = !isQuoted;
    return length;
}

/// A parameter of the content type, such as its charset; empty if there is none.
QByteArray parameterOf(const Part &part, const QByteArray &name)
{
    const QByteArray value = part.headers.value("content-type");
    QByteArrayView rest(value);
    while (!rest.isEmpty()) {
        const qsizetype length = firstParameterLength(rest);
        const QByteArrayView parameter = rest.first(length);
        rest = rest.sliced(std::min(length + 1, rest.size()));
        const qsizetype equals = parameter.indexOf('=');
        if (equals >= 0 && parameter.first(equals).toByteArray().trimmed().toLower() == name)
            return parameter.sliced(equals + 1).toByteArray().replace('"', "").trimmed();
    }
    return {};
}

int hexadecimalValue(char byte)
{
    if (byte >= '0' && byte <= '9')
        return byte - '0';
    const char lower = static_cast<char>(byte | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// RFC 2045, 6.7. Invalid escapes are kept.
QByteArray decodeQuotedPrintable(QByteArrayView text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QByteArrayView rest = text.sliced(i);
        if (rest.startsWith("=\r\n")) {
            i += 2;
        } else if (rest.startsWith("=\n")) {
            i += 1;
        } else if (rest.size() > 2 && rest[0] == '=' && hexadecimalValue(rest[1]) >= 0
            && hexadecimalValue(rest[2]) >= 0) {
            bytes.append(static_cast<char>(hexadecimalValue(rest[1]) * 16 + hexadecimalValue(rest[2])));
            i += 2;
        } else {
            bytes.append(rest[0]);
        }
    }
    return bytes;
}

QByteArray decodeBody(const Part &part)
{
    const QByteArray encoding = part.headers.value("content-transfer-encoding").toLower();
    if (encoding == "base64")
        return QByteArray::fromBase64(part.body.toByteArray());
    return encoding == "quoted-printable" ? decodeQuotedPrintable(part.body) : part.body.toByteArray();
}

std::optional<WebArchivePage> findPage(QByteArrayView bytes, int depth)
{
    const Part whole = partOf(bytes);
    const QByteArray type = typeOf(whole);
    if (!type.startsWith("multipart/")) {
        const bool isPage = kindOfMimeType(type) == DocumentKind::Html;
        return isPage ? std::optional(WebArchivePage{decodeBody(whole), parameterOf(whole, "charset")})
                      : std::nullopt;
    }
    const QByteArray boundary = "--" + parameterOf(whole, "boundary");
    QByteArrayView rest = whole.body;
    const char *start = nullptr; // of the open part
    while (depth < maxPartDepth && !rest.isEmpty()) {
        const char *const lineStart = rest.data();
        if (!takeLine(rest).startsWith(boundary))
            continue;
        if (start) {
            const std::optional<WebArchivePage> page =
                findPage(QByteArrayView(start, lineStart - start), depth + 1);
            if (page)
                return page;
        }
        start = rest.data();
    }
    if (start && depth < maxPartDepth) // the last part has no end
        return findPage(QByteArrayView(start, bytes.data() + bytes.size() - start), depth + 1);
    return std::nullopt;
}

/// Whether the bytes begin with MIME headers.
bool looksLikeWebArchive(QByteArrayView bytes)
{
    constexpr QByteArrayView version("mime-version:");
    return bytes.first(std::min(bytes.size(), version.size())).toByteArray().toLower() == version;
}

/// The first page in the archive, or the whole archive if it is not a multipart; absent if it has no page.
/// Takes time proportional to the length.
std::optional<WebArchivePage> pageOfWebArchive(QByteArrayView bytes)
{
    return findPage(bytes, 0);
}

using Chunk = Result<AttributedString, DocumentError::Cause>;

/// Reports a failure of a chunk as a failure of the document.
Chunk convertCause(Result<AttributedString, DocumentError> text)
{
    if (text)
        return std::move(text).value();
    switch (text.error().cause) {
    case DocumentError::Cause::NotEnoughMemory:
        return DocumentError::Cause::NotEnoughMemory;
    case DocumentError::Cause::TooLong:
        return DocumentError::Cause::TooLarge;
    default:
        return DocumentError::Cause::TooComplex;
    }
}

Chunk readNestedDocument(const PackageDocument &document, QByteArrayView bytes)
{
    ReadAllowance &allowance = document.package.allowance();
    if (allowance.nestedDocuments == 0)
        return DocumentError::Cause::TooComplex;
    --allowance.nestedDocuments;
    Chunk chunk = readPackageDocument(bytes, allowance, document.readChunk);
    ++allowance.nestedDocuments;
    return chunk;
}

/// An archive without a page is not supported. A page without text is empty.
Chunk readWebArchive(const PackageDocument &document, QByteArrayView bytes)
{
    const std::optional<WebArchivePage> page = pageOfWebArchive(bytes);
    return page ? convertCause(document.readChunk(DocumentKind::Html, page->contents, page->charset))
                : DocumentError::Cause::UnsupportedPart;
}

/// The first bytes are more reliable than the content type, which some programs set carelessly.
Chunk readChunkOfType(const PackageDocument &document, const QByteArray &type, QByteArrayView bytes)
{
    if (bytes.startsWith("PK\x03\x04"))
        return readNestedDocument(document, bytes);
    if (looksLikeRtf(bytes))
        return convertCause(document.readChunk(DocumentKind::Rtf, bytes, {}));
    if (type == "message/rfc822" || type == "multipart/related" || looksLikeWebArchive(bytes))
        return readWebArchive(document, bytes);
    const std::optional<DocumentKind> kind = kindOfMimeType(type);
    if (kind == DocumentKind::Html || looksLikeHtml(bytes))
        return convertCause(document.readChunk(DocumentKind::Html, bytes, {}));
    if (kind == DocumentKind::PlainText)
        return convertCause(document.readChunk(DocumentKind::PlainText, bytes, {}));
    return DocumentError::Cause::UnsupportedPart;
}

} // namespace

Chunk readAlternativeChunk(
    const PackageDocument &document, const Relationships &relationships, const QByteArray &identifier)
{
    const std::optional<QByteArray> part = relationships.partById(identifier);
    if (!part)
        return AttributedString();
    if (--document.package.allowance().chunks < 0)
        return DocumentError::Cause::TooComplex;
    const Result<QByteArray, DocumentError::Cause> bytes = document.package.contents(*part);
    if (!bytes)
        return bytes.error();
    Chunk chunk = readChunkOfType(document, document.types.typeOf(*part), bytes.value());
    if (!chunk || chunk.value().isEmpty() || chunk.value().string().endsWith(u'\n'))
        return chunk;
    const AttributedString &text = chunk.value();
    AttributedStringBuilder ended;
    ended.append(text);
    ended.append(u"\n", text.attributesAt(text.length() - 1));
    return ended.build();
}
