// SPDX-License-Identifier: MIT
#include "text_statistics/FixedRules.h"

#include "platform/segmentation/Paragraphs.h"

namespace {

bool endsWithMark(QStringView text, char16_t mark)
{
    QStringView trimmed = text.trimmed();
    if (trimmed.endsWith(u'"') && !trimmed.endsWith(mark))
        trimmed.chop(1);
    return trimmed.endsWith(mark);
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
    return endsWithMark(text, u'.');
}

bool FixedRules::endsWithQuestionMark(QStringView text)
{
    return endsWithMark(text, u'?');
}

bool FixedRules::endsWithExclamationPoint(QStringView text)
{
    return endsWithMark(text, u'!');
}

bool FixedRules::endsWithTerminalPunctuationMark(QStringView text)
{
    return endsWithPeriod(text) || endsWithQuestionMark(text) || endsWithExclamationPoint(text);
}
