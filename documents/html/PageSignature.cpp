// SPDX-License-Identifier: MIT
#include "documents/html/HtmlReader.h"
#include "platform/text_encoding/AsciiBytes.h"

#include <algorithm>

namespace {

/// Bytes that are looked at; a comment before the first tag may fill them nearly.
constexpr qsizetype signatureLength = 65'536;

/// The beginning of UTF-16 text as bytes, a question mark for what is no ASCII.
QByteArray narrowed(QByteArrayView bytes, bool isBigEndian)
{
    QByteArray narrow;
    narrow.reserve(bytes.size() / 2);
    for (qsizetype at = 0; at + 2 <= bytes.size(); at += 2) {
        const char high = bytes[isBigEndian ? at : at + 1];
        const char low = bytes[isBigEndian ? at + 1 : at];
        narrow.append(high == 0 && low > 0 ? low : '?');
    }
    return narrow;
}

/// Without its byte order mark, in an encoding that has ASCII in it.
QByteArray asciiStart(QByteArrayView bytes)
{
    const QByteArrayView start = bytes.first(std::min(bytes.size(), signatureLength));
    if (start.startsWith("\xEF\xBB\xBF"))
        return start.sliced(3).toByteArray();
    if (start.startsWith("\xFE\xFF"))
        return narrowed(start.sliced(2), true);
    if (start.startsWith("\xFF\xFE"))
        return narrowed(start.sliced(2), false);
    // Whatever comes before the first tag is in ASCII, or it is no page.
    if (start.size() >= 2 && start[0] == 0 && start[1] != 0)
        return narrowed(start, true);
    if (start.size() >= 2 && start[0] != 0 && start[1] == 0)
        return narrowed(start, false);
    return start.toByteArray();
}

QByteArrayView withoutLeadingSpace(QByteArrayView text)
{
    return text.sliced(std::find_if_not(text.begin(), text.end(), isHtmlSpace) - text.begin());
}

/// What follows upon white space, comments and processing instructions; empty where one does not end.
QByteArrayView firstTag(QByteArrayView text)
{
    while (true) {
        text = withoutLeadingSpace(text);
        const bool isComment = text.startsWith("<!--");
        if (!isComment && !text.startsWith("<?"))
            return text;
        const QByteArrayView end = isComment ? "-->" : "?>";
        const qsizetype at = text.indexOf(end, 2);
        if (at < 0)
            return {};
        text = text.sliced(at + end.size());
    }
}

} // namespace

bool looksLikeHtml(QByteArrayView bytes)
{
    const QByteArray start = asciiStart(bytes);
    QByteArrayView tag = firstTag(start);
    constexpr QByteArrayView doctype = "<!doctype";
    constexpr QByteArrayView html = "<html";
    if (startsWithWord(tag, doctype)) {
        tag = withoutLeadingSpace(tag.sliced(doctype.size()));
        return startsWithWord(tag, html.sliced(1))
            && (tag.size() == html.size() - 1 || isHtmlSpace(tag[html.size() - 1])
                || tag[html.size() - 1] == '>');
    }
    return startsWithWord(tag, html)
        && (tag.size() == html.size() || isHtmlSpace(tag[html.size()]) || tag[html.size()] == '>'
            || tag[html.size()] == '/');
}
