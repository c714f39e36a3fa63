// SPDX-License-Identifier: MIT
#include "text_statistics/CountedItem.h"

#include <QCoreApplication>

#include <array>

namespace {

struct ReasonRow {
    CountingReason reason;
    bool isCounted;
    const char *identifier;
    const char *explanation; ///< %1: the minimum number of sentences
};

/// The row of a reason is at the index of its value.
constexpr std::array<ReasonRow, countingReasonCount> reasonTable{{
    {CountingReason::Word, true, "word",
        QT_TRANSLATE_NOOP("CountingReason", "a word has at least one letter, digit or ideograph")},
    {CountingReason::SingleCharacter, false, "single-character",
        QT_TRANSLATE_NOOP(
            "CountingReason", "in American English, a single character other than A, I, O and X is no word")},
    {CountingReason::NoLetterOrDigit, false, "no-letter-or-digit",
        QT_TRANSLATE_NOOP("CountingReason", "there is no letter, digit or ideograph in it")},
    {CountingReason::NotWhiteSpace, true, "not-white-space",
        QT_TRANSLATE_NOOP("CountingReason", "everything but white space counts, in UTF-16 code units")},
    {CountingReason::WhiteSpace, false, "white-space",
        QT_TRANSLATE_NOOP("CountingReason", "spaces, tabs and line ends are white space")},
    {CountingReason::AnyCharacter, true, "any-character",
        QT_TRANSLATE_NOOP("CountingReason", "every character counts, in UTF-16 code units")},
    {CountingReason::Sentence, true, "sentence",
        QT_TRANSLATE_NOOP(
            "CountingReason", "a sentence has at least one word, and ends in punctuation if you require it")},
    {CountingReason::Blank, false, "blank",
        QT_TRANSLATE_NOOP("CountingReason", "there is nothing but white space in it")},
    {CountingReason::NoEndPunctuation, false, "no-end-punctuation",
        QT_TRANSLATE_NOOP("CountingReason",
            "it does not end in a full stop, question mark or exclamation mark, or in one of them and a "
            "straight double quote")},
    {CountingReason::NoWord, false, "no-word", QT_TRANSLATE_NOOP("CountingReason", "there is no word in it")},
    {CountingReason::OnlySingleCharacters, false, "only-single-characters",
        QT_TRANSLATE_NOOP("CountingReason",
            "in American English, its single characters other than A, I, O and X are no words")},
    {CountingReason::LineEnd, true, "line-end",
        QT_TRANSLATE_NOOP("CountingReason", "the line ends in a line end")},
    {CountingReason::TextEnd, true, "text-end",
        QT_TRANSLATE_NOOP("CountingReason", "the line ends with the text")},
    {CountingReason::ColumnFull, true, "column-full",
        QT_TRANSLATE_NOOP("CountingReason", "the line ends where the column between the margins is full")},
    {CountingReason::Paragraph, true, "paragraph",
        QT_TRANSLATE_NOOP(
            "CountingReason", "a paragraph is not blank, and has as many sentences as you require")},
    {CountingReason::TooFewSentences, false, "too-few-sentences",
        QT_TRANSLATE_NOOP("CountingReason", "it has fewer counted sentences than you require (%1)")},
    {CountingReason::Tab, true, "tab",
        QT_TRANSLATE_NOOP("CountingReason", "the paragraph begins with a tab")},
    {CountingReason::NoIndent, false, "no-indent",
        QT_TRANSLATE_NOOP("CountingReason", "it does not begin with a tab")},
    {CountingReason::OtherWhiteSpace, false, "other-white-space",
        QT_TRANSLATE_NOOP("CountingReason", "it begins with white space other than a tab")},
    {CountingReason::IndentOfStyle, false, "indent-of-style",
        QT_TRANSLATE_NOOP("CountingReason", "it is indented by its style, not by a tab")},
}};

const ReasonRow &rowOf(CountingReason reason)
{
    return reasonTable.at(static_cast<std::size_t>(reason));
}

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < reasonTable.size(); ++i) {
        if (reasonTable[i].reason != static_cast<CountingReason>(i))
            return false;
    }
    return true;
}
static_assert(isInOrder());

} // namespace

bool isCounted(CountingReason reason)
{
    return rowOf(reason).isCounted;
}

const char *identifierOf(CountingReason reason)
{
    return rowOf(reason).identifier;
}

QString explanationOf(CountingReason reason, const TextRules &rules)
{
    const QString text = QCoreApplication::translate("CountingReason", rowOf(reason).explanation);
    return reason == CountingReason::TooFewSentences ? text.arg(rules.minimumSentencesOfParagraph) : text;
}

quint64 CountedItem::count() const
{
    if (!isCounted())
        return 0;
    const bool isRun =
        statistic == Statistic::Characters || statistic == Statistic::CharactersIncludingWhitespace;
    return isRun ? static_cast<quint64>(length) : 1;
}
