// SPDX-License-Identifier: MIT
#include "text_statistics/StringStatistics.h"

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
    return ::numberOfCharactersNotIncludingWhiteSpace(text);
}

quint64 QBYExtension::numberOfSentences(QStringView text)
{
    return counterOfThisThread().numberOfSentences(text, currentTextRules());
}

quint64 QBYExtension::numberOfHardLineBreaks(QStringView text)
{
    return ::numberOfHardLineBreaks(text);
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
    return ::endsWithPeriod(text);
}

bool QBYExtension::endsWithQuestionMark(QStringView text)
{
    return ::endsWithQuestionMark(text);
}

bool QBYExtension::endsWithExclamationPoint(QStringView text)
{
    return ::endsWithExclamationPoint(text);
}

bool QBYExtension::endsWithTerminalPunctuationMark(QStringView text)
{
    return ::endsWithTerminalPunctuationMark(text);
}
