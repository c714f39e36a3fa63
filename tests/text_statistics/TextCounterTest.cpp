// SPDX-License-Identifier: MIT
#include "text_statistics/TextCounter.h"

#include "tests/harness/QuillbayTest.h"
#include "text_statistics/FixedRules.h"

#include <vector>

using ::testing::ElementsAre;

namespace {

TextRules rulesOf(const QString &locale)
{
    return {.localeIdentifier = [locale] { return locale; }};
}

class TextCounterTest : public ::testing::Test {
protected:
    quint64 words(const QString &text) { return m_counter.numberOfWords(text, m_rules); }
    quint64 sentences(const QString &text) { return m_counter.numberOfSentences(text, m_rules); }
    quint64 paragraphs(const QString &text) { return m_counter.numberOfParagraphs(text, m_rules); }
    quint64 indented(const QString &text) { return m_counter.numberOfParagraphsIndented(text, m_rules); }

    TextCounter m_counter;
    TextRules m_rules = rulesOf(QStringLiteral("en_US"));
};

} // namespace

TEST_F(TextCounterTest, TheEmptyTextHasZeros)
{
    EXPECT_EQ(m_counter.count(u"", m_rules), QBYWordCounterStats());
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u""), 0U);
    EXPECT_EQ(FixedRules::numberOfCharactersNotIncludingWhiteSpace(u""), 0U);
    EXPECT_FALSE(FixedRules::endsWithPeriod(u""));
    EXPECT_FALSE(FixedRules::endsWithQuestionMark(u""));
    EXPECT_FALSE(FixedRules::endsWithExclamationPoint(u""));
    EXPECT_FALSE(FixedRules::endsWithTerminalPunctuationMark(u""));
}

TEST_F(TextCounterTest, DropsALoneLetterOtherThanAIOXInAmericanEnglish)
{
    EXPECT_EQ(words(QStringLiteral("a dog")), 2U);
    EXPECT_EQ(words(QStringLiteral("b dog")), 1U);
    EXPECT_EQ(words(QStringLiteral("X marks")), 2U);
    EXPECT_EQ(words(QStringLiteral("5")), 0U);
    EXPECT_EQ(words(QStringLiteral("55")), 1U);
    EXPECT_EQ(words(QStringLiteral("I saw a b c x")), 4U);
    EXPECT_EQ(words(QStringLiteral("a A i I o O x X")), 8U);
    // Letters whose lower-case or compatibility form is one of the four are not counted.
    EXPECT_EQ(words(QStringLiteral("\u0130 \u0131 \u00AA \u00BA \uFF21 \u00E4")), 0U);
    EXPECT_EQ(words(QStringLiteral("\u5B57")), 0U);
    EXPECT_EQ(words(QStringLiteral("\U00020000")), 1U); // two code units
}

TEST_F(TextCounterTest, CountsLoneLettersInEveryOtherLocale)
{
    for (const char *locale : {"fr_FR", "en_GB", "en", "en_US_POSIX", "en_us", ""}) {
        m_rules = rulesOf(QString::fromLatin1(locale));
        EXPECT_EQ(words(QStringLiteral("I saw a b c x")), 6U) << locale;
        EXPECT_EQ(words(QStringLiteral("5")), 1U) << locale;
    }
}

TEST_F(TextCounterTest, ReadsTheLocaleForEveryWordThatItMayDecideAbout)
{
    int asked = 0;
    m_rules.localeIdentifier = [&asked] {
        return ++asked > 2 ? QStringLiteral("fr_FR") : QStringLiteral("en_US");
    };
    EXPECT_EQ(words(QStringLiteral("b c d e")), 2U);
}

TEST_F(TextCounterTest, WhiteSpaceIsTheSeparatorsAndFiveControlsAndNextLine)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const QChar character(static_cast<char16_t>(unit));
        const bool isSeparator = character.category() == QChar::Separator_Space
            || character.category() == QChar::Separator_Line
            || character.category() == QChar::Separator_Paragraph;
        const bool isWhiteSpace = isSeparator || (unit >= 0x09 && unit <= 0x0D) || unit == 0x85;
        EXPECT_EQ(
            FixedRules::numberOfCharactersNotIncludingWhiteSpace(QString(character)), isWhiteSpace ? 0U : 1U)
            << unit;
    }
}

TEST_F(TextCounterTest, CharactersAreUtf16CodeUnits)
{
    EXPECT_EQ(FixedRules::numberOfCharactersNotIncludingWhiteSpace(u"\U0001F600"), 2U);
    EXPECT_EQ(FixedRules::numberOfCharactersNotIncludingWhiteSpace(u"e\u0301 \u00A0x"), 3U);
    EXPECT_EQ(m_counter.count(u"e\u0301 \u00A0x\r\n", m_rules).numberOfCharactersIncludingWhitespace, 7U);
}

TEST_F(TextCounterTest, ASentenceNeedsACountedWord)
{
    EXPECT_EQ(sentences(QStringLiteral("Hello there. ... ??? b. It is.")), 2U);
    m_rules = rulesOf(QStringLiteral("de_DE"));
    EXPECT_EQ(sentences(QStringLiteral("Hello there. ... ??? b. It is.")), 3U);
}

TEST_F(TextCounterTest, WithTheRuleASentenceNeedsTerminalPunctuation)
{
    EXPECT_EQ(sentences(QStringLiteral("Hello world")), 1U);
    m_rules.sentencesNeedTerminalPunctuation = true;
    EXPECT_EQ(sentences(QStringLiteral("Hello world")), 0U);
    EXPECT_EQ(sentences(QStringLiteral("Hello world. And")), 1U);
    EXPECT_EQ(sentences(QStringLiteral("Hello world\u2026")), 0U);
    EXPECT_EQ(sentences(QStringLiteral("Hello world:")), 0U);
    EXPECT_EQ(sentences(QStringLiteral("Hello world. \n")), 1U);
    EXPECT_EQ(sentences(QStringLiteral("\"Hello world.\"")), 1U);
    EXPECT_EQ(sentences(QStringLiteral("\u201CHello world.\u201D")), 0U);
}

TEST_F(TextCounterTest, TerminalPunctuationIsTheMarkOrTheMarkAndAStraightQuote)
{
    EXPECT_TRUE(FixedRules::endsWithPeriod(u"Hi. \n"));
    EXPECT_TRUE(FixedRules::endsWithPeriod(u"Hi.\""));
    EXPECT_FALSE(FixedRules::endsWithPeriod(u"Hi.\u201D"));
    EXPECT_FALSE(FixedRules::endsWithPeriod(u"Hi.'"));
    EXPECT_FALSE(FixedRules::endsWithPeriod(u"Hi.\"\""));
    EXPECT_FALSE(FixedRules::endsWithPeriod(u"Hi. \""));
    EXPECT_FALSE(FixedRules::endsWithPeriod(u"Hi?"));
    EXPECT_FALSE(FixedRules::endsWithPeriod(u"\""));
    EXPECT_TRUE(FixedRules::endsWithPeriod(u"."));
    EXPECT_TRUE(FixedRules::endsWithPeriod(u".\""));
    EXPECT_TRUE(FixedRules::endsWithQuestionMark(u"Hi?\" "));
    EXPECT_FALSE(FixedRules::endsWithQuestionMark(u"Hi!"));
    EXPECT_TRUE(FixedRules::endsWithExclamationPoint(u"Hi!\u2029"));
    EXPECT_FALSE(FixedRules::endsWithExclamationPoint(u"Hi."));
    EXPECT_TRUE(FixedRules::endsWithTerminalPunctuationMark(u"Hi."));
    EXPECT_TRUE(FixedRules::endsWithTerminalPunctuationMark(u"Hi?"));
    EXPECT_TRUE(FixedRules::endsWithTerminalPunctuationMark(u"Hi!"));
    EXPECT_FALSE(FixedRules::endsWithTerminalPunctuationMark(u"Hi;"));
}

TEST_F(TextCounterTest, HardLineBreaksAreLines)
{
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u"a"), 1U);
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u"a\nb"), 2U);
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u"a\n"), 1U);
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u"a\n\n"), 2U);
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u"\n"), 1U);
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u"a\r\nb"), 2U);
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u"a\n\rb"), 3U);
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u"a\u2028b\u2029c\rd"), 4U);
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u"\r\n"), 1U);
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u"a\u000Bb\u000Cc\u0085d"), 1U);
}

TEST_F(TextCounterTest, WhiteSpaceOnlyHasLinesAndNothingElse)
{
    const QBYWordCounterStats counts = m_counter.count(u"  \n\t ", m_rules);
    EXPECT_EQ(counts,
        (QBYWordCounterStats{.numberOfCharactersIncludingWhitespace = 5, .numberOfHardLineBreaks = 2}));
    EXPECT_EQ(m_counter.count(u" \t \t", m_rules).numberOfHardLineBreaks, 1U);
}

TEST_F(TextCounterTest, ParagraphsEndAtParagraphSeparatorsOnly)
{
    EXPECT_EQ(paragraphs(QStringLiteral("a\r\nb")), 2U);
    EXPECT_EQ(paragraphs(QStringLiteral("a\u2028b")), 1U);
    EXPECT_EQ(FixedRules::numberOfHardLineBreaks(u"a\u2028b"), 2U);
    EXPECT_EQ(paragraphs(QStringLiteral("a\n\n \u00A0\u2029b\rc")), 3U);
}

TEST_F(TextCounterTest, WithAMinimumOfZeroEveryParagraphThatIsNotBlankCounts)
{
    m_rules.sentencesNeedTerminalPunctuation = true;
    EXPECT_EQ(paragraphs(QStringLiteral("A heading\n\nSome text.\n...\n")), 3U);
}

TEST_F(TextCounterTest, AParagraphNeedsItsMinimumOfCountedSentences)
{
    m_rules.minimumSentencesOfParagraph = 2;
    EXPECT_EQ(paragraphs(QStringLiteral("Only one.\nHere is one. And two.\n")), 1U);
    EXPECT_EQ(indented(QStringLiteral("\tOnly one.\n\tHere is one. And two.\n")), 1U);
    EXPECT_EQ(paragraphs(QStringLiteral("Here is one. And two\n")), 1U);
    m_rules.sentencesNeedTerminalPunctuation = true;
    EXPECT_EQ(paragraphs(QStringLiteral("Here is one. And two\n")), 0U);
    m_rules.minimumSentencesOfParagraph = INT64_MAX;
    EXPECT_EQ(paragraphs(QStringLiteral("Here is one. And two.\n")), 0U);
}

TEST_F(TextCounterTest, OnlyATabIndents)
{
    EXPECT_EQ(indented(QStringLiteral("\tOne.\n  Two.\n\u00A0Three.\n \tFour.\n\t\tFive.\n\n")), 2U);
    EXPECT_EQ(indented(QStringLiteral("\t   ")), 0U);
}

TEST_F(TextCounterTest, CountsAllTogetherAsOneByOne)
{
    m_rules.minimumSentencesOfParagraph = 1;
    const QString text = QStringLiteral("\tOne b two. Three?\r\n\nfour\u2028five!\u2029 \t\nSix");
    const QBYWordCounterStats counts = m_counter.count(text, m_rules);
    EXPECT_EQ(counts.numberOfWords, 6U);
    EXPECT_EQ(counts.numberOfWords, words(text));
    EXPECT_EQ(counts.numberOfCharacters, FixedRules::numberOfCharactersNotIncludingWhiteSpace(text));
    EXPECT_EQ(counts.numberOfCharactersIncludingWhitespace, static_cast<quint64>(text.size()));
    EXPECT_EQ(counts.numberOfSentences, sentences(text));
    EXPECT_EQ(counts.numberOfHardLineBreaks, FixedRules::numberOfHardLineBreaks(text));
    EXPECT_EQ(counts.numberOfParagraphs, paragraphs(text));
    EXPECT_EQ(counts.numberOfIndentedParagraphs, indented(text));
}

TEST_F(TextCounterTest, ReportsProgressAfterEveryParagraph)
{
    std::vector<qsizetype> positions;
    const QBYWordCounterStats counts =
        m_counter.count(u"one\n\r\ntwo", m_rules, [&](qsizetype position) { positions.push_back(position); });
    EXPECT_EQ(counts.numberOfWords, 2U);
    EXPECT_THAT(positions, ElementsAre(4, 6, 9));
}
