// SPDX-License-Identifier: MIT
#include "text_statistics/StringStatistics.h"

#include "text_statistics/FixedRules.h"
#include "text_statistics/MeasuringSurface.h"
#include "text_statistics/TextCounter.h"

namespace {

TextCounter &counterOfThisThread()
{
    thread_local TextCounter counter;
    return counter;
}

} // namespace

quint64 QBYExtension::numberOfWords(QStringView text)
{
    return counterOfThisThread().numberOfWords(text, currentTextRules());
}

quint64 QBYExtension::numberOfCharactersNotIncludingWhiteSpace(QStringView text)
{
    return FixedRules::numberOfCharactersNotIncludingWhiteSpace(text);
}

quint64 QBYExtension::numberOfSentences(QStringView text)
{
    return counterOfThisThread().numberOfSentences(text, currentTextRules());
}

quint64 QBYExtension::numberOfHardLineBreaks(QStringView text)
{
    return FixedRules::numberOfHardLineBreaks(text);
}

quint64 QBYExtension::numberOfParagraphs(QStringView text)
{
    return counterOfThisThread().numberOfParagraphs(text, currentTextRules());
}

quint64 QBYExtension::numberOfParagraphsIndented(QStringView text)
{
    return counterOfThisThread().numberOfParagraphsIndented(text, currentTextRules());
}

bool QBYExtension::endsWithPeriod(QStringView text)
{
    return FixedRules::endsWithPeriod(text);
}

bool QBYExtension::endsWithQuestionMark(QStringView text)
{
    return FixedRules::endsWithQuestionMark(text);
}

bool QBYExtension::endsWithExclamationPoint(QStringView text)
{
    return FixedRules::endsWithExclamationPoint(text);
}

bool QBYExtension::endsWithTerminalPunctuationMark(QStringView text)
{
    return FixedRules::endsWithTerminalPunctuationMark(text);
}

quint64 QBYExtension::numberOfLines(const AttributedString &text)
{
    return MeasuringSurface::shared().numberOfLines(text, currentPageRules());
}
