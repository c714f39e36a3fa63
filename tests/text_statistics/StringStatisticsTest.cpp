// SPDX-License-Identifier: MIT
// The operations on strings follow the preferences and the locale as they are at the moment of the call.
#include "text_statistics/StringStatistics.h"

#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/QuillbayTest.h"

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

TEST_F(StringStatisticsTest, TheRestRestsOnTheTextAlone)
{
    EXPECT_EQ(numberOfCharactersNotIncludingWhiteSpace(u"a b\U0001F600"), 4U);
    EXPECT_EQ(numberOfHardLineBreaks(u"a\nb"), 2U);
    EXPECT_TRUE(endsWithPeriod(u"a."));
    EXPECT_TRUE(endsWithQuestionMark(u"a?"));
    EXPECT_TRUE(endsWithExclamationPoint(u"a!"));
    EXPECT_TRUE(endsWithTerminalPunctuationMark(u"a!"));
    EXPECT_FALSE(endsWithTerminalPunctuationMark(u"a"));
}
