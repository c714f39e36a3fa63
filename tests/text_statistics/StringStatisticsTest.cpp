// SPDX-License-Identifier: MIT
// The statistics of strings follow the preferences and the locale at the time of the call.
#include "text_statistics/StringStatistics.h"

#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/QuillbayTest.h"
#include "text_statistics/FixedRules.h"

using namespace QBYExtension;
using Preferences = QBYUserDefaultsController;

class StringStatisticsTest : public QuillbayTest { };

TEST_F(StringStatisticsTest, WordsFollowTheLocale)
{
    setLocale("en_US.UTF-8");
    EXPECT_EQ(numberOfWords(u"I saw a b c x"), 4U);
    setLocale("fr_FR.UTF-8");
    EXPECT_EQ(numberOfWords(u"I saw a b c x"), 6U);
    setLocale("C");
    EXPECT_EQ(numberOfWords(u"b dog"), 2U);
}

TEST_F(StringStatisticsTest, SentencesFollowTheTerminalPunctuationPreference)
{
    EXPECT_EQ(numberOfSentences(u"Hello world"), 1U);
    Preferences::setShouldEnforceTrailingPeriodForSentencesCount(true);
    EXPECT_EQ(numberOfSentences(u"Hello world"), 0U);
    Preferences::setShouldEnforceTrailingPeriodForSentencesCount(false);
    EXPECT_EQ(numberOfSentences(u"Hello world"), 1U);
}

TEST_F(StringStatisticsTest, ParagraphsFollowTheMinimumOfSentences)
{
    const QString text = QStringLiteral("\tOne.\nOne. Two.\n\tOne. Two.");
    EXPECT_EQ(numberOfParagraphs(text), 3U);
    EXPECT_EQ(numberOfParagraphsIndented(text), 2U);
    Preferences::setMinNumberOfSentencesForParagraphCount(2);
    EXPECT_EQ(numberOfParagraphs(text), 2U);
    EXPECT_EQ(numberOfParagraphsIndented(text), 1U);
    Preferences::setMinNumberOfSentencesForParagraphCount(-3);
    EXPECT_EQ(numberOfParagraphs(text), 3U);
}

TEST_F(StringStatisticsTest, TheOthersDependOnTheTextAlone)
{
    EXPECT_EQ(numberOfCharactersNotIncludingWhiteSpace(u"a b\U0001F600"), 4U);
    EXPECT_EQ(numberOfHardLineBreaks(u"a\nb"), 2U);
    EXPECT_TRUE(endsWithPeriod(u"a."));
    EXPECT_TRUE(endsWithQuestionMark(u"a?"));
    EXPECT_TRUE(endsWithExclamationPoint(u"a!"));
    EXPECT_TRUE(endsWithTerminalPunctuationMark(u"a!"));
    EXPECT_FALSE(endsWithTerminalPunctuationMark(u"a"));
}

// Some functions have the same name there; both headers can be used in one file.
TEST_F(StringStatisticsTest, AgreeWithTheFixedRulesOfTheTextCounter)
{
    const QString text = QStringLiteral("a b\r\nc d.\" ");
    EXPECT_EQ(numberOfCharactersNotIncludingWhiteSpace(text),
        FixedRules::numberOfCharactersNotIncludingWhiteSpace(text));
    EXPECT_EQ(numberOfHardLineBreaks(text), FixedRules::numberOfHardLineBreaks(text));
    EXPECT_EQ(endsWithPeriod(text), FixedRules::endsWithPeriod(text));
    EXPECT_EQ(endsWithQuestionMark(text), FixedRules::endsWithQuestionMark(text));
    EXPECT_EQ(endsWithExclamationPoint(text), FixedRules::endsWithExclamationPoint(text));
    EXPECT_EQ(endsWithTerminalPunctuationMark(text), FixedRules::endsWithTerminalPunctuationMark(text));
}
