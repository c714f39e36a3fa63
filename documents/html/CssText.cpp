// SPDX-License-Identifier: MIT
#include "documents/html/CssText.h"

#include "platform/text_encoding/AsciiBytes.h"

#include <QByteArrayList>

#include <algorithm>
#include <optional>

namespace {

constexpr double windowWidth = 1280; // CSS pixels
constexpr double pixelsPerEm = 16;

/// The position behind a string. It ends at the latest with its line.
qsizetype endOfString(QByteArrayView text, qsizetype start)
{
    const char quote = text[start];
    for (qsizetype at = start + 1; at < text.size(); ++at) {
        if (text[at] == '\\')
            ++at;
        else if (text[at] == quote || text[at] == '\n')
            return at + 1;
    }
    return text.size();
}

qsizetype endOfComment(QByteArrayView text, qsizetype start)
{
    const qsizetype end = text.indexOf("*/", start + 2);
    return end < 0 ? text.size() : end + 2;
}

bool isAt(QByteArrayView text, qsizetype at, QByteArrayView what)
{
    return text.sliced(at).startsWith(what);
}

/// The byte that closes a block; NUL if the byte opens none.
char closerOf(char byte)
{
    switch (byte) {
    case '(':
        return ')';
    case '[':
        return ']';
    case '{':
        return '}';
    default:
        return '\0';
    }
}

/// Pieces between bytes that separate outside of blocks; empty ones are left out.
QByteArrayList splitCss(QByteArrayView text, QByteArrayView separators)
{
    QByteArrayList pieces;
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = findInCss(text, start, separators);
        if (const QByteArrayView piece = trimCss(text.sliced(start, end - start)); !piece.isEmpty())
            pieces.append(piece.toByteArray());
        start = end + 1;
    }
    return pieces;
}

/// feature: with its parentheses, in lower case. Absent if it is not supported.
std::optional<bool> doesFeatureApply(QByteArrayView feature)
{
    if (!feature.startsWith('(') || !feature.endsWith(')'))
        return std::nullopt;
    const QByteArrayView pair = feature.sliced(1).chopped(1);
    const qsizetype colon = std::max<qsizetype>(pair.indexOf(':'), 0);
    const QByteArrayView name = trimCss(pair.first(colon));
    const QByteArrayView value = trimCss(pair.sliced(std::min(colon + 1, pair.size())));
    const bool isEm = value.endsWith("em");
    QByteArrayView digits = value.chopped(std::min<qsizetype>(2, value.size()));
    if (value.endsWith("rem"))
        digits.chop(1);
    bool isNumber = false;
    const double width = digits.toDouble(&isNumber) * (isEm ? pixelsPerEm : 1);
    if (!isNumber || !(isEm || value.endsWith("px")))
        return std::nullopt;
    if (name == "min-width")
        return windowWidth >= width;
    return name == "max-width" ? std::optional(windowWidth <= width) : std::nullopt;
}

/// query: in lower case.
bool doesQueryApply(QByteArrayView query)
{
    const QByteArrayList words = splitCss(query, " \t\n\f\r");
    auto word = words.cbegin();
    const bool isNegated = word != words.cend() && *word == "not";
    if (isNegated || (word != words.cend() && *word == "only"))
        ++word;
    bool applies = true;
    if (word != words.cend() && !word->startsWith('(')) {
        applies = *word == "all" || *word == "screen";
        ++word;
    }
    for (; word != words.cend(); ++word) {
        if (*word == "and")
            continue;
        const std::optional<bool> feature = doesFeatureApply(*word);
        if (!feature)
            return false;
        applies = applies && *feature;
    }
    return applies != isNegated;
}

/// name: of an at-rule, in lower case, with its at sign.
bool areRulesInsideRead(QByteArrayView name, QByteArrayView prelude)
{
    if (name == "@media")
        return appliesToScreen(prelude);
    if (name == "@supports")
        return !startsWithWord(trimCss(prelude), "not");
    return name == "@layer";
}

/// What may stand between rules: white space, comments, and the marks of comments and sections of the page
/// around the sheet.
qsizetype skipBetweenRules(QByteArrayView sheet, qsizetype at)
{
    while (at < sheet.size()) {
        if (isHtmlSpace(sheet[at]))
            ++at;
        else if (isAt(sheet, at, "/*"))
            at = endOfComment(sheet, at);
        else if (isAt(sheet, at, "<!--"))
            at += 4;
        else if (isAt(sheet, at, "-->") || isAt(sheet, at, "]]>"))
            at += 3;
        else if (isAt(sheet, at, "<![CDATA["))
            at += 9;
        else
            break;
    }
    return at;
}

} // namespace

qsizetype findInCss(QByteArrayView text, qsizetype start, QByteArrayView bytes)
{
    QByteArray closers; // of open blocks, innermost last
    for (qsizetype at = start; at < text.size();) {
        const char byte = text[at];
        if (closers.isEmpty() && bytes.contains(byte))
            return at;
        if (byte == '"' || byte == '\'') {
            at = endOfString(text, at);
        } else if (byte == '/' && isAt(text, at, "/*")) {
            at = endOfComment(text, at);
        } else {
            if (const char closer = closerOf(byte))
                closers.append(closer);
            else if (!closers.isEmpty() && byte == closers.back())
                closers.chop(1);
            at += byte == '\\' ? 2 : 1;
        }
    }
    return text.size();
}

QByteArray removeCssComments(QByteArrayView text)
{
    QByteArray rest;
    for (qsizetype at = 0; at < text.size();) {
        qsizetype end = at;
        while (end < text.size() && !isAt(text, end, "/*")) {
            if (text[end] == '"' || text[end] == '\'')
                end = endOfString(text, end);
            else
                end = std::min(end + (text[end] == '\\' ? 2 : 1), text.size());
        }
        rest.append(text.sliced(at, end - at));
        at = end < text.size() ? endOfComment(text, end) : end;
    }
    return rest;
}

QByteArrayView trimCss(QByteArrayView text)
{
    const auto *start = std::find_if_not(text.begin(), text.end(), isHtmlSpace);
    const auto *end = text.end();
    while (end != start && isHtmlSpace(end[-1]))
        --end;
    return {start, end};
}

bool appliesToScreen(QByteArrayView mediaQueries)
{
    const QByteArrayList queries = splitCss(removeCssComments(mediaQueries).toLower(), ",");
    return queries.isEmpty()
        || std::any_of(queries.begin(), queries.end(), [](const QByteArray &q) { return doesQueryApply(q); });
}

void readStyleRules(QByteArrayView sheet, const RuleConsumer &consume)
{
    for (qsizetype at = skipBetweenRules(sheet, 0); at < sheet.size(); at = skipBetweenRules(sheet, at)) {
        const bool isAtRule = sheet[at] == '@';
        const qsizetype open = findInCss(sheet, at, isAtRule ? ";{}" : "{}");
        if (open == sheet.size())
            return;
        if (sheet[open] != '{') { // the end of a statement, or of an at-rule whose rules are read
            at = open + 1;
            continue;
        }
        const QByteArrayView prelude = sheet.sliced(at, open - at);
        if (isAtRule) {
            const qsizetype end = std::find_if(prelude.begin() + 1, prelude.end(), [](char byte) {
                return isHtmlSpace(byte) || byte == '(';
            }) - prelude.begin();
            if (areRulesInsideRead(prelude.first(end).toByteArray().toLower(), prelude.sliced(end))) {
                at = open + 1;
                continue;
            }
        }
        const qsizetype close = findInCss(sheet, open + 1, "}");
        if (!isAtRule)
            consume(prelude, sheet.sliced(open + 1, close - open - 1));
        at = std::min(close + 1, sheet.size());
    }
}
