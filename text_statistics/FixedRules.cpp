// SPDX-License-Identifier: MIT
#include "text_statistics/FixedRules.h"

#include "platform/segmentation/Paragraphs.h"

namespace {

// Whether a text, without white space at its end, ends in a mark, or in a mark and a straight double quote.
template <typename IsMark>
bool endsWithMark(QStringView text, IsMark &&isMark)
{
    const auto isMarkBefore = [&](qsizetype end) { return end > 0 && isMark(text.utf16()[end - 1]); };
    qsizetype end = text.size();
    while (end > 0 && QChar::isSpace(text.utf16()[end - 1]))
        --end;
    return isMarkBefore(end) || (end > 0 && text.utf16()[end - 1] == u'"' && isMarkBefore(end - 1));
}

} // namespace

quint64 FixedRules::numberOfCharactersNotIncludingWhiteSpace(QStringView text)
{
    quint64 characters = 0;
    for (const QChar unit : text)
        characters += unit.isSpace() ? 0 : 1;
    return characters;
}

quint64 FixedRules::numberOfHardLineBreaks(QStringView text)
{
    quint64 lines = 0;
    const char16_t *units = text.utf16();
    bool isLineOpen = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isFirstOfPair = units[i] == u'\r' && i + 1 < text.size() && units[i + 1] == u'\n';
        isLineOpen = isFirstOfPair || !isLineEnd(units[i]);
        lines += isLineOpen ? 0 : 1;
    }
    return lines + (isLineOpen ? 1 : 0);
}

bool FixedRules::endsWithPeriod(QStringView text)
{
    return endsWithMark(text, [](char16_t unit) { return unit == u'.'; });
}

bool FixedRules::endsWithQuestionMark(QStringView text)
{
    return endsWithMark(text, [](char16_t unit) { return unit == u'?'; });
}

bool FixedRules::endsWithExclamationPoint(QStringView text)
{
    return endsWithMark(text, [](char16_t unit) { return unit == u'!'; });
}

bool FixedRules::endsWithTerminalPunctuationMark(QStringView text)
{
    return endsWithMark(text, [](char16_t unit) { return unit == u'.' || unit == u'?' || unit == u'!'; });
}
