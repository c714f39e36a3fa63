// SPDX-License-Identifier: MIT
#include "tests/harness/QuillbayTest.h"
#include "text_statistics/TrimTrailingNumbersOffDecimal.h"
#include "text_statistics/WordCounterStatStringFormatter.h"

using Formatter = WordCounterStatStringFormatter;

TEST(WordCounterStatStringFormatter, HasEightLongTemplatesInStyleZero)
{
    EXPECT_EQ(Formatter::formattedWordCountStringForStyle(0, 0), QStringLiteral("•Word Count: 0"));
    EXPECT_EQ(Formatter::formattedCharacterCountStringForStyle(0, 1), QStringLiteral("•Character Count: 1"));
    EXPECT_EQ(Formatter::formattedCharacterCountIncludingWhitespaceStringForStyle(0, 2),
        QStringLiteral("•Including Whitespace Count: 2"));
    EXPECT_EQ(Formatter::formattedSentencesCountStringForStyle(0, 3), QStringLiteral("•Sentence Count: 3"));
    EXPECT_EQ(Formatter::formattedLineCountStringForStyle(0, 4), QStringLiteral("•Line Count: 4"));
    EXPECT_EQ(Formatter::formattedHardLineBreakCountStringForStyle(0, 5),
        QStringLiteral("•Hard Line Break Count: 5"));
    EXPECT_EQ(Formatter::formattedParagraphCountStringForStyle(0, 6), QStringLiteral("•Paragraph Count: 6"));
    EXPECT_EQ(Formatter::formattedIndentedParagraphCountStringForStyle(0, 7),
        QStringLiteral("•Indented Paragraph Count: 7"));
}

TEST(WordCounterStatStringFormatter, HasEightShortTemplatesInEveryOtherStyle)
{
    for (const qint64 style : std::initializer_list<qint64>{1, 7, -1, INT64_MIN, INT64_MAX}) {
        EXPECT_EQ(Formatter::formattedWordCountStringForStyle(style, 0), QStringLiteral("•Words: 0"));
        EXPECT_EQ(
            Formatter::formattedCharacterCountStringForStyle(style, 1), QStringLiteral("•Characters: 1"));
        EXPECT_EQ(Formatter::formattedCharacterCountIncludingWhitespaceStringForStyle(style, 2),
            QStringLiteral("•Chars (+Whitespace): 2"));
        EXPECT_EQ(
            Formatter::formattedSentencesCountStringForStyle(style, 3), QStringLiteral("•Sentences: 3"));
        EXPECT_EQ(Formatter::formattedLineCountStringForStyle(style, 4), QStringLiteral("•Lines: 4"));
        EXPECT_EQ(Formatter::formattedHardLineBreakCountStringForStyle(style, 5),
            QStringLiteral("•Lines (Hard Break): 5"));
        EXPECT_EQ(
            Formatter::formattedParagraphCountStringForStyle(style, 6), QStringLiteral("•Paragraphs: 6"));
        EXPECT_EQ(Formatter::formattedIndentedParagraphCountStringForStyle(style, 7),
            QStringLiteral("•Indented Paragraphs: 7"));
    }
}

TEST(WordCounterStatStringFormatter, PrintsSignedNumbersWithoutGrouping)
{
    EXPECT_EQ(Formatter::formattedWordCountStringForStyle(1, 1234567), QStringLiteral("•Words: 1234567"));
    EXPECT_EQ(Formatter::formattedWordCountStringForStyle(1, UINT64_MAX), QStringLiteral("•Words: -1"));
}

TEST(TrimTrailingNumbersOffDecimal, AlwaysShowsAPoint)
{
    const auto trimmed = TrimTrailingNumbersOffDecimal::trimTrailingNumbersOffFloatingPointNumber;
    EXPECT_EQ(trimmed(0.0), QStringLiteral("0.0"));
    EXPECT_EQ(trimmed(11.0), QStringLiteral("11.0"));
    EXPECT_EQ(trimmed(8.5), QStringLiteral("8.5"));
    EXPECT_EQ(trimmed(8.2677), QStringLiteral("8.268"));
    EXPECT_EQ(trimmed(8.0004), QStringLiteral("8.0"));
    EXPECT_EQ(trimmed(1234.5), QStringLiteral("1234.5"));
    EXPECT_EQ(trimmed(0.0625), QStringLiteral("0.062"));
    EXPECT_EQ(trimmed(-1.5), QStringLiteral("-1.5"));
}
