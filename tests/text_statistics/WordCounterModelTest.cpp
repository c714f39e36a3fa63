// SPDX-License-Identifier: MIT
#include "text_statistics/WordCounterModel.h"

#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/QuillbayTest.h"

#include <vector>

namespace {

constexpr qint64 longStyle = 0;
constexpr qint64 shortStyle = 1;

class WordCounterModelTest : public QuillbayTest {
protected:
    void SetUp() override { m_model.setFormattedStringStyle(shortStyle); }

    static AttributedString text(const QString &characters) { return AttributedString(characters); }

    WordCounterModel m_model;
};

constexpr QBYDocxMetaData record{
    .numberOfWords = 11,
    .numberOfCharacters = 12,
    .numberOfCharactersWithWhitespace = 13,
    .numberOfLines = 14,
    .numberOfSentences = 15,
    .numberOfParagraphs = 16,
    .numberOfHardLineBreaks = 17,
    .numberOfIndentedParagraphs = 18,
};

} // namespace

TEST_F(WordCounterModelTest, IsEmptyAtFirst)
{
    const WordCounterModel model;
    EXPECT_EQ(model.formattedStringStyle(), longStyle);
    EXPECT_EQ(model.statsRepresentation(), QBYWordCounterStats());
    EXPECT_TRUE(model.wordCountFormattedString().isNull());
    EXPECT_TRUE(model.numberOfIndentedParagraphsFormattedString().isNull());
    EXPECT_FALSE(model.attributedStringToCount());
    EXPECT_FALSE(model.docXMetaDataToFormat());
}

TEST_F(WordCounterModelTest, AnUpdateWithoutContentShowsZeros)
{
    m_model.updateStatsUsingAttributedString(true);
    EXPECT_EQ(m_model.wordCountFormattedString(), QStringLiteral("•Words: 0"));
    EXPECT_EQ(m_model.characterCountFormattedString(), QStringLiteral("•Characters: 0"));
    EXPECT_EQ(m_model.characterCountFormattedStringIncludingWhiteSpace(),
        QStringLiteral("•Chars (+Whitespace): 0"));
    EXPECT_EQ(m_model.numberOfSentencesCountFormattedString(), QStringLiteral("•Sentences: 0"));
    EXPECT_EQ(m_model.numberOfLinesFormattedString(), QStringLiteral("•Lines: 0"));
    EXPECT_EQ(m_model.numberOfHardLineBreaksFormattedString(), QStringLiteral("•Lines (Hard Break): 0"));
    EXPECT_EQ(m_model.numberOfParagraphsFormattedString(), QStringLiteral("•Paragraphs: 0"));
    EXPECT_EQ(m_model.numberOfIndentedParagraphsFormattedString(), QStringLiteral("•Indented Paragraphs: 0"));
}

TEST_F(WordCounterModelTest, CountsAStyledTextBeforeReturning)
{
    m_model.setAttributedStringToCount(text(QStringLiteral("\tOne two. Three!\nFour\n")));
    EXPECT_EQ(m_model.numberOfWords(), 4U);
    EXPECT_EQ(m_model.numberOfCharacters(), 17U);
    EXPECT_EQ(m_model.numberOfCharactersIncludingWhitespace(), 22U);
    EXPECT_EQ(m_model.numberOfSentences(), 3U);
    EXPECT_EQ(m_model.numberOfLines(), 2U);
    EXPECT_EQ(m_model.numberOfHardLineBreaks(), 2U);
    EXPECT_EQ(m_model.numberOfParagraphs(), 2U);
    EXPECT_EQ(m_model.numberOfIndentedParagraphs(), 1U);
    EXPECT_EQ(m_model.wordCountFormattedString(), QStringLiteral("•Words: 4"));
    EXPECT_EQ(m_model.numberOfIndentedParagraphsFormattedString(), QStringLiteral("•Indented Paragraphs: 1"));
    ASSERT_TRUE(m_model.attributedStringToCount());
    EXPECT_EQ(m_model.attributedStringToCount()->length(), 22);
}

TEST_F(WordCounterModelTest, ReadsThePreferencesForEveryCount)
{
    m_model.setAttributedStringToCount(text(QStringLiteral("Hello world")));
    EXPECT_EQ(m_model.numberOfSentences(), 1U);
    QBYUserDefaultsController::setShouldEnforceTrailingPeriodForSentencesCount(true);
    m_model.updateStatsUsingAttributedString(true);
    EXPECT_EQ(m_model.numberOfSentences(), 0U);
}

TEST_F(WordCounterModelTest, CountsUnderGivenRulesWithoutPreferences)
{
    WordCounterModel model([] {
        return CountingRules{.text = {.localeIdentifier = [] { return QStringLiteral("de_DE"); },
                                 .minimumSentencesOfParagraph = 2},
            .page = {.paperName = {}, .paperSize = {100, 100}, .leftMargin = 45, .rightMargin = 45}};
    });
    model.setAttributedStringToCount(text(QStringLiteral("b. Zwei.\nEins.")));
    EXPECT_EQ(model.numberOfWords(), 3U);
    EXPECT_EQ(model.numberOfParagraphs(), 1U);
    EXPECT_GT(model.numberOfLines(), 2U); // in a column of ten points
}

TEST_F(WordCounterModelTest, RemovingTheTextMakesAllCountsZero)
{
    m_model.setAttributedStringToCount(text(QStringLiteral("One two.")));
    m_model.setAttributedStringToCount(std::nullopt);
    EXPECT_EQ(m_model.statsRepresentation(), QBYWordCounterStats());
    EXPECT_EQ(m_model.wordCountFormattedString(), QStringLiteral("•Words: 0"));
}

TEST_F(WordCounterModelTest, CopiesAWordRecord)
{
    m_model.setDocXMetaDataToFormat(record);
    EXPECT_EQ(m_model.statsRepresentation(), (QBYWordCounterStats{11, 12, 13, 15, 14, 17, 16, 18}));
    EXPECT_EQ(m_model.numberOfLinesFormattedString(), QStringLiteral("•Lines: 14"));
    EXPECT_EQ(m_model.numberOfHardLineBreaksFormattedString(), QStringLiteral("•Lines (Hard Break): 17"));
}

TEST_F(WordCounterModelTest, AStyledTextAfterAWordRecordReplacesTheCountsAndKeepsTheRecord)
{
    m_model.setDocXMetaDataToFormat(record);
    m_model.setAttributedStringToCount(text(QStringLiteral("One")));
    EXPECT_EQ(m_model.numberOfWords(), 1U);
    ASSERT_TRUE(m_model.docXMetaDataToFormat());
    m_model.updateStatsUsingAttributedString(false);
    EXPECT_EQ(m_model.numberOfWords(), 11U);
}

TEST_F(WordCounterModelTest, WithoutAWordRecordTheCountsStayAndTheStringsAreUpdated)
{
    m_model.setDocXMetaDataToFormat(record);
    m_model.setFormattedStringStyle(longStyle);
    m_model.setDocXMetaDataToFormat(std::nullopt);
    EXPECT_EQ(m_model.numberOfWords(), 11U);
    EXPECT_EQ(m_model.wordCountFormattedString(), QStringLiteral("•Word Count: 11"));
    EXPECT_FALSE(m_model.docXMetaDataToFormat());
}

TEST_F(WordCounterModelTest, TakesARecordOfCountsAndReturnsIt)
{
    const QBYWordCounterStats stats{1, 2, 3, 4, 5, 6, 7, UINT64_MAX};
    m_model.setFormattedStringStyle(longStyle);
    m_model.updateModelWithPrepopulatedStats(stats);
    EXPECT_EQ(m_model.statsRepresentation(), stats);
    EXPECT_EQ(m_model.wordCountFormattedString(), QStringLiteral("•Word Count: 1"));
    EXPECT_EQ(m_model.characterCountFormattedString(), QStringLiteral("•Character Count: 2"));
    EXPECT_EQ(m_model.characterCountFormattedStringIncludingWhiteSpace(),
        QStringLiteral("•Including Whitespace Count: 3"));
    EXPECT_EQ(m_model.numberOfSentencesCountFormattedString(), QStringLiteral("•Sentence Count: 4"));
    EXPECT_EQ(m_model.numberOfLinesFormattedString(), QStringLiteral("•Line Count: 5"));
    EXPECT_EQ(m_model.numberOfHardLineBreaksFormattedString(), QStringLiteral("•Hard Line Break Count: 6"));
    EXPECT_EQ(m_model.numberOfParagraphsFormattedString(), QStringLiteral("•Paragraph Count: 7"));
    EXPECT_EQ(
        m_model.numberOfIndentedParagraphsFormattedString(), QStringLiteral("•Indented Paragraph Count: -1"));
}

TEST_F(WordCounterModelTest, ANewStyleShowsOnlyAtTheNextUpdate)
{
    m_model.updateModelWithPrepopulatedStats({.numberOfWords = 1});
    m_model.setFormattedStringStyle(longStyle);
    EXPECT_EQ(m_model.wordCountFormattedString(), QStringLiteral("•Words: 1"));
    m_model.doUpdateDisplayStrings();
    EXPECT_EQ(m_model.wordCountFormattedString(), QStringLiteral("•Word Count: 1"));
}

TEST_F(WordCounterModelTest, AnUnknownStyleLeavesTheStringsAsTheyWere)
{
    m_model.updateModelWithPrepopulatedStats({.numberOfWords = 1});
    for (const qint64 style : {qint64{2}, qint64{-1}}) {
        m_model.setFormattedStringStyle(style);
        m_model.updateModelWithPrepopulatedStats({.numberOfWords = 2});
        EXPECT_EQ(m_model.numberOfWords(), 2U);
        EXPECT_EQ(m_model.wordCountFormattedString(), QStringLiteral("•Words: 1"));
    }
}

TEST_F(WordCounterModelTest, SettersOfCountsAndStringsOnlyStore)
{
    m_model.setNumberOfWords(9);
    m_model.setWordCountFormattedString(QStringLiteral("nine"));
    EXPECT_EQ(m_model.statsRepresentation().numberOfWords, 9U);
    EXPECT_EQ(m_model.wordCountFormattedString(), QStringLiteral("nine"));
}

TEST_F(WordCounterModelTest, ReportsTheProgressOfACount)
{
    std::vector<qsizetype> positions;
    m_model.setProgress([&](qsizetype position) { positions.push_back(position); });
    m_model.setAttributedStringToCount(text(QStringLiteral("One\nTwo\n")));
    EXPECT_THAT(positions, ::testing::ElementsAre(2, 4, 6, 8));
}

TEST(StatisticTable, ListsTheCountsInTheOrderOfTheRecord)
{
    const QBYWordCounterStats stats{1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(statsFromCounts({1, 2, 3, 4, 5, 6, 7, 8}), stats);
    for (quint64 i = 0; i < statisticCount; ++i) {
        EXPECT_EQ(static_cast<quint64>(statisticTable.at(i).statistic), i);
        EXPECT_EQ(stats.*statisticTable.at(i).count, i + 1);
    }
}

TEST(StatisticTable, AddsAllCounts)
{
    QBYWordCounterStats stats{1, 2, 3, 4, 5, 6, 7, 8};
    stats += stats;
    EXPECT_EQ(stats, (QBYWordCounterStats{2, 4, 6, 8, 10, 12, 14, 16}));
}
