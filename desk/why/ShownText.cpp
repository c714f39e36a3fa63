// SPDX-License-Identifier: MIT
#include "desk/why/ShownText.h"

#include "platform/segmentation/Paragraphs.h"

#include <algorithm>

namespace {

/// A character of the same length for those that mean something to QTextDocument.
QChar shownForm(QChar unit)
{
    switch (unit.unicode()) {
    case u'\0':
    case 0xFDD0:
    case 0xFDD1:
        return QChar::ReplacementCharacter;
    case QChar::ObjectReplacementCharacter:
        return u'\u25A1';
    default:
        return unit;
    }
}

/// How many code units of a line from a position on are shown as a line of their own.
qsizetype shownLineLength(QStringView text, qsizetype start)
{
    qsizetype length = 0;
    while (start + length < text.size() && length < ShownText::maxLineLength
        && !isLineEnd(text[start + length].unicode()))
        ++length;
    const qsizetype end = start + length;
    const bool splitsPair = length > 1 && end < text.size() && text[end].isLowSurrogate();
    return splitsPair ? length - 1 : length;
}

} // namespace

ShownText::ShownText(const QString &text)
    : m_length(std::min(text.size(), maxLength))
{
    const QStringView shown = QStringView(text).first(m_length);
    m_string.reserve(m_length + m_length / maxLineLength);
    m_lines.clear();
    bool isLineOpen = true; // an empty text and one that ends in a line end have an empty last line
    for (qsizetype at = 0; at < m_length || isLineOpen;) {
        if (!m_lines.empty())
            m_string += u'\n';
        const qsizetype length = shownLineLength(shown, at);
        m_lines.push_back({at, m_string.size(), length});
        std::transform(
            shown.begin() + at, shown.begin() + at + length, std::back_inserter(m_string), shownForm);
        at += length;
        isLineOpen = at < m_length && isLineEnd(shown[at].unicode());
        if (isLineOpen)
            at += lineEndLength(shown, at);
    }
}

qsizetype ShownText::toShown(qsizetype position) const
{
    const auto behind = std::upper_bound(m_lines.begin() + 1, m_lines.end(), position,
        [](qsizetype wanted, const Line &line) { return wanted < line.start; });
    const Line &line = *(behind - 1);
    return line.shownStart + std::min(position - line.start, line.length);
}

qsizetype ShownText::fromShown(qsizetype position) const
{
    const auto behind = std::upper_bound(m_lines.begin() + 1, m_lines.end(), position,
        [](qsizetype wanted, const Line &line) { return wanted < line.shownStart; });
    const Line &line = *(behind - 1);
    return line.start + std::min(position - line.shownStart, line.length);
}
