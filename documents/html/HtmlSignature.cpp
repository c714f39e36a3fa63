// SPDX-License-Identifier: MIT
#include "documents/html/HtmlSignature.h"

#include "platform/text_encoding/AsciiBytes.h"

#include <QByteArray>

#include <algorithm>

namespace {

/// Bytes to examine; leaves room for a long comment before the first tag.
constexpr qsizetype signatureLength = 65'536;

/// UTF-16 text as ASCII; other characters become question marks.
QByteArray narrow(QByteArrayView bytes, bool isBigEndian)
{
    QByteArray ascii;
    ascii.reserve(bytes.size() / 2);
    for (qsizetype at = 0; at + 2 <= bytes.size(); at += 2) {
        const char high = bytes[isBigEndian ? at : at + 1];
        const char low = bytes[isBigEndian ? at + 1 : at];
        ascii.append(high == 0 && low > 0 ? low : '?');
    }
    return ascii;
}

/// The beginning of a page without its byte order mark, in a superset of ASCII.
QByteArray asciiStart(QByteArrayView bytes)
{
    const QByteArrayView start = bytes.first(std::min(bytes.size(), signatureLength));
    if (start.startsWith("\xEF\xBB\xBF"))
        return start.sliced(3).toByteArray();
    if (start.startsWith("\xFE\xFF"))
        return narrow(start.sliced(2), true);
    if (start.startsWith("\xFF\xFE"))
        return narrow(start.sliced(2), false);
    // UTF-16 without a mark: a page begins with ASCII.
    if (start.size() >= 2 && start[0] == 0 && start[1] != 0)
        return narrow(start, true);
    if (start.size() >= 2 && start[0] != 0 && start[1] == 0)
        return narrow(start, false);
    return start.toByteArray();
}

QByteArrayView skipLeadingSpace(QByteArrayView text)
{
    return text.sliced(std::find_if_not(text.begin(), text.end(), isHtmlSpace) - text.begin());
}

/// The text after white space, comments and processing instructions; empty if one of them does not end.
QByteArrayView textFromFirstTag(QByteArrayView text)
{
    while (true) {
        text = skipLeadingSpace(text);
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
    QByteArrayView tag = textFromFirstTag(start);
    constexpr QByteArrayView doctype = "<!doctype";
    constexpr QByteArrayView html = "<html";
    if (startsWithWord(tag, doctype)) {
        tag = skipLeadingSpace(tag.sliced(doctype.size()));
        return startsWithWord(tag, html.sliced(1))
            && (tag.size() == html.size() - 1 || isHtmlSpace(tag[html.size() - 1])
                || tag[html.size() - 1] == '>');
    }
    return startsWithWord(tag, html)
        && (tag.size() == html.size() || isHtmlSpace(tag[html.size()]) || tag[html.size()] == '>'
            || tag[html.size()] == '/');
}
