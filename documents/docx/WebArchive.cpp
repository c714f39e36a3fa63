// SPDX-License-Identifier: MIT
#include "documents/docx/WebArchive.h"

#include <QHash>

#include <algorithm>

namespace {

constexpr int deepestParts = 4; // multiparts within each other
constexpr qsizetype longestHeaders = 65'536; // bytes, of one part

struct Part {
    QHash<QByteArray, QByteArray> headers; // names in lower case
    QByteArrayView body;
};

/// The line at the front, without its end, which is taken off the text with it.
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
    while (!text.isEmpty() && length - text.size() < longestHeaders) {
        const QByteArrayView line = takeLine(text);
        if (line.isEmpty())
            break;
        if (line.front() == ' ' || line.front() == '\t') { // goes on from the line before
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

/// How long the first of some parameters is: up to a semicolon outside of quotation marks.
qsizetype lengthOfFirst(QByteArrayView parameters)
{
    bool isQuoted = false;
    qsizetype length = 0;
    for (; length < parameters.size() && (isQuoted || parameters[length] != ';'); ++length)
        if (parameters[length] == '"')
            isQuoted = !isQuoted;
    return length;
}

/// A parameter of the type, such as its charset; empty where there is none.
QByteArray parameterOf(const Part &part, const QByteArray &name)
{
    const QByteArray value = part.headers.value("content-type");
    QByteArrayView rest(value);
    while (!rest.isEmpty()) {
        const qsizetype length = lengthOfFirst(rest);
        const QByteArrayView parameter = rest.first(length);
        rest = rest.sliced(std::min(length + 1, rest.size()));
        const qsizetype equals = parameter.indexOf('=');
        if (equals >= 0 && parameter.first(equals).toByteArray().trimmed().toLower() == name)
            return parameter.sliced(equals + 1).toByteArray().replace('"', "").trimmed();
    }
    return {};
}

int hexadecimalDigit(char byte)
{
    if (byte >= '0' && byte <= '9')
        return byte - '0';
    const char lower = static_cast<char>(byte | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// RFC 2045, 6.7. What is no escape stands for itself.
QByteArray fromQuotedPrintable(QByteArrayView text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QByteArrayView rest = text.sliced(i);
        if (rest.startsWith("=\r\n")) {
            i += 2;
        } else if (rest.startsWith("=\n")) {
            i += 1;
        } else if (rest.size() > 2 && rest[0] == '=' && hexadecimalDigit(rest[1]) >= 0
            && hexadecimalDigit(rest[2]) >= 0) {
            bytes.append(static_cast<char>(hexadecimalDigit(rest[1]) * 16 + hexadecimalDigit(rest[2])));
            i += 2;
        } else {
            bytes.append(rest[0]);
        }
    }
    return bytes;
}

QByteArray decoded(const Part &part)
{
    const QByteArray encoding = part.headers.value("content-transfer-encoding").toLower();
    if (encoding == "base64")
        return QByteArray::fromBase64(part.body.toByteArray());
    return encoding == "quoted-printable" ? fromQuotedPrintable(part.body) : part.body.toByteArray();
}

std::optional<WebArchivePage> pageIn(QByteArrayView bytes, int depth)
{
    const Part whole = partOf(bytes);
    const QByteArray type = typeOf(whole);
    if (!type.startsWith("multipart/")) {
        const bool isPage = type == "text/html" || type == "application/xhtml+xml";
        return isPage ? std::optional(WebArchivePage{decoded(whole), parameterOf(whole, "charset")})
                      : std::nullopt;
    }
    const QByteArray boundary = "--" + parameterOf(whole, "boundary");
    QByteArrayView rest = whole.body;
    const char *start = nullptr; // of the part that is open
    while (depth < deepestParts && !rest.isEmpty()) {
        const char *const lineStart = rest.data();
        if (!takeLine(rest).startsWith(boundary))
            continue;
        if (start) {
            const std::optional<WebArchivePage> page =
                pageIn(QByteArrayView(start, lineStart - start), depth + 1);
            if (page)
                return page;
        }
        start = rest.data();
    }
    if (start && depth < deepestParts) // the last part is not ended
        return pageIn(QByteArrayView(start, bytes.data() + bytes.size() - start), depth + 1);
    return std::nullopt;
}

} // namespace

bool looksLikeWebArchive(QByteArrayView bytes)
{
    constexpr QByteArrayView version("mime-version:");
    return bytes.first(std::min(bytes.size(), version.size())).toByteArray().toLower() == version;
}

std::optional<WebArchivePage> pageOfWebArchive(QByteArrayView bytes)
{
    return pageIn(bytes, 0);
}
