// SPDX-License-Identifier: MIT
// The items that the counters report: as many as they count, and with their reasons.
#include "tests/harness/QuillbayTest.h"
#include "tests/text_statistics/TextsOfAllClasses.h"
#include "text_statistics/ColumnCounter.h"
#include "text_statistics/ItemReport.h"

#include <ostream>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

void PrintTo(const CountedItem &item, std::ostream *stream)
{
    *stream << item.start << "+" << item.length << " " << identifierOf(item.reason);
}

namespace {

/// As "word:a", with what a person can read.
std::string shortFormOf(QStringView text, const CountedItem &item)
{
    QString part = text.sliced(item.start, item.length).toString();
    part.replace(u'\n', QStringLiteral("\\n")).replace(u'\t', QStringLiteral("\\t"));
    return identifierOf(item.reason) + (':' + part.toStdString());
}

QBYWordCounterStats count(TextCounter &counter, QStringView text, const TextRules &rules, ItemReport &report)
{
    return counter.count(text, rules, {}, &report);
}

QBYWordCounterStats count(
    PlainTextCounter &counter, QStringView text, const TextRules &rules, ItemReport &report)
{
    return counter.count(text, rules, &report);
}

class CountedItemsTest : public ::testing::Test {
protected:
    /// expected: of the same text, counted without a report.
    template <typename Counter>
    static std::vector<CountedItem> itemsOf(Counter &counter, const QString &text, Statistic statistic,
        const TextRules &rules, const QBYWordCounterStats &expected)
    {
        std::vector<CountedItem> items;
        ItemReport report(text, statistic, [&](const CountedItem &item) { items.push_back(item); });
        const QBYWordCounterStats stats = count(counter, text, rules, report);
        EXPECT_EQ(stats, expected);
        quint64 sum = 0;
        qsizetype position = 0;
        for (const CountedItem &item : items) {
            EXPECT_EQ(item.statistic, statistic);
            EXPECT_GE(item.start, position);
            EXPECT_LE(item.end(), text.size());
            position = item.end();
            sum += item.count();
        }
        const StatisticRow &row = statisticTable.at(static_cast<std::size_t>(statistic));
        EXPECT_EQ(sum, stats.*row.count) << row.name;
        return items;
    }

    /// All but laid-out lines, which are no matter of plain text.
    void expectItemsAsCounted(const QString &text, int variant)
    {
        SCOPED_TRACE(text.toUtf8().toHex().toStdString());
        const TextRules rules = rulesOf(variant);
        const QBYWordCounterStats expected = m_fast.count(text, rules);
        for (const StatisticRow &row : statisticTable) {
            if (row.statistic == Statistic::Lines)
                continue;
            const std::vector<CountedItem> fast = itemsOf(m_fast, text, row.statistic, rules, expected);
            const std::vector<CountedItem> plain = itemsOf(m_plain, text, row.statistic, rules, expected);
            // A pictograph that a zero-width joiner adds to a word is not reported as a part of it.
            if (row.statistic != Statistic::Words || !text.contains(QChar(0x200D))) {
                EXPECT_EQ(fast, plain) << row.name;
            }
        }
    }

    std::vector<std::string> reported(const QString &text, Statistic statistic, const char *locale = "en_US",
        bool needsPunctuation = true, qint64 minimumSentences = 0)
    {
        const TextRules rules{.localeIdentifier = [locale] { return QString::fromLatin1(locale); },
            .minimumSentencesOfParagraph = minimumSentences,
            .sentencesNeedTerminalPunctuation = needsPunctuation};
        std::vector<std::string> forms;
        for (const CountedItem &item : itemsOf(m_fast, text, statistic, rules, m_fast.count(text, rules)))
            forms.push_back(shortFormOf(text, item));
        return forms;
    }

    TextCounter m_fast;
    PlainTextCounter m_plain;
};

} // namespace

TEST_F(CountedItemsTest, AreAsManyAsTheCountsForRandomTexts)
{
    std::mt19937 random(3000);
    for (int round = 0; round < 3000 && !HasFailure(); ++round)
        expectItemsAsCounted(randomOf(representatives(), random, round % 60), round % rulesVariantCount);
}

TEST_F(CountedItemsTest, AreAsManyAsTheCountsForTextsLongerThanAWindow)
{
    std::mt19937 random(4096);
    const QString word = QStringLiteral("word");
    for (int round = 0; round < 30 && !HasFailure(); ++round) {
        QString text;
        while (text.size() < 9000) {
            text += QString(static_cast<qsizetype>(random() % 3000), u'a')
                + randomOf(representatives(), random, 5) + word;
            text += round % 2 == 0 ? QStringLiteral(" ") : QStringLiteral(".");
        }
        expectItemsAsCounted(text, round % rulesVariantCount);
    }
}

TEST_F(CountedItemsTest, ASingleLetterIsNoWordInAmericanEnglishOnly)
{
    const QString text = QStringLiteral("I saw b.");
    EXPECT_THAT(reported(text, Statistic::Words), ElementsAre("word:I", "word:saw", "single-character:b"));
    EXPECT_THAT(reported(text, Statistic::Words, "en_GB"), ElementsAre("word:I", "word:saw", "word:b"));
}

TEST_F(CountedItemsTest, WordsKeepWhatJoinsThem)
{
    EXPECT_THAT(reported(QStringLiteral("It's 3.14, e\u0301t snake_case."), Statistic::Words),
        ElementsAre("word:It's", "word:3.14", "word:e\u0301t", "word:snake_case"));
    EXPECT_THAT(reported(QStringLiteral("\uD55C\uAD6D\uC5B4 \u4F60\u597D"), Statistic::Words),
        ElementsAre("word:\uD55C\uAD6D\uC5B4", "word:\u4F60\u597D"));
}

TEST_F(CountedItemsTest, MarksThatStandAloneAreNoWords)
{
    EXPECT_THAT(reported(QStringLiteral("& one - two, \U0001F600 ***"), Statistic::Words),
        ElementsAre("no-letter-or-digit:&", "word:one", "no-letter-or-digit:-", "word:two",
            "no-letter-or-digit:\U0001F600", "no-letter-or-digit:***"));
}

TEST_F(CountedItemsTest, SentencesSayWhyTheyDoNotCount)
{
    const QString text = QStringLiteral("One two. B. \n?!\n  \nNo end");
    EXPECT_THAT(reported(text, Statistic::Sentences),
        ElementsAre("sentence:One two. ", "only-single-characters:B. ", "no-word:?!",
            "blank:  ", "no-end-punctuation:No end"));
    EXPECT_THAT(reported(text, Statistic::Sentences, "de_DE", false),
        ElementsAre("sentence:One two. ", "sentence:B. ", "no-word:?!", "blank:  ", "sentence:No end"));
}

TEST_F(CountedItemsTest, ParagraphsSayWhyTheyDoNotCount)
{
    const QString text = QStringLiteral("One. Two.\n\n \nOne.");
    EXPECT_THAT(reported(text, Statistic::Paragraphs),
        ElementsAre("paragraph:One. Two.", "blank:", "blank: ", "paragraph:One."));
    EXPECT_THAT(reported(text, Statistic::Paragraphs, "en_US", true, 2),
        ElementsAre("paragraph:One. Two.", "blank:", "blank: ", "too-few-sentences:One."));
}

TEST_F(CountedItemsTest, OnlyATabIndents)
{
    EXPECT_THAT(reported(QStringLiteral("\tOne.\n  Two.\nThree.\n\t \n"), Statistic::IndentedParagraphs),
        ElementsAre("tab:\\tOne.", "other-white-space:  Two.", "no-indent:Three.", "blank:\\t "));
    EXPECT_THAT(reported(QStringLiteral("\tOne."), Statistic::IndentedParagraphs, "en_US", true, 2),
        ElementsAre("too-few-sentences:\\tOne."));
}

TEST_F(CountedItemsTest, CharactersAreReportedInRuns)
{
    const QString text = QStringLiteral("ab \n\u00A0c");
    EXPECT_THAT(reported(text, Statistic::Characters),
        ElementsAre("not-white-space:ab", "white-space: \\n\u00A0", "not-white-space:c"));
    EXPECT_THAT(reported(text, Statistic::CharactersIncludingWhitespace),
        ElementsAre("any-character:ab", "any-character: \\n\u00A0", "any-character:c"));
}

TEST_F(CountedItemsTest, EveryHardLineCounts)
{
    EXPECT_THAT(reported(QStringLiteral("a\n\nb\u2028c"), Statistic::HardLineBreaks),
        ElementsAre("line-end:a\\n", "line-end:\\n", "line-end:b\u2028", "text-end:c"));
    EXPECT_THAT(reported(QStringLiteral("a\r\n"), Statistic::HardLineBreaks), ElementsAre("line-end:a\r\\n"));
}

TEST_F(CountedItemsTest, AnEmptyTextHasNone)
{
    for (const StatisticRow &row : statisticTable)
        EXPECT_THAT(reported(QString(), row.statistic), IsEmpty()) << row.name;
}

TEST_F(CountedItemsTest, EveryReasonHasANameAndASentenceOfItsOwn)
{
    QStringList identifiers;
    QStringList explanations;
    TextRules rules;
    rules.minimumSentencesOfParagraph = 7;
    for (std::size_t i = 0; i < countingReasonCount; ++i) {
        const auto reason = static_cast<CountingReason>(i);
        identifiers.append(QString::fromLatin1(identifierOf(reason)));
        explanations.append(explanationOf(reason, rules));
        EXPECT_FALSE(explanations.last().contains(u'%') || explanations.last().endsWith(u'.'));
    }
    EXPECT_EQ(identifiers.removeDuplicates(), 0);
    EXPECT_EQ(explanations.removeDuplicates(), 0);
    EXPECT_THAT(
        explanationOf(CountingReason::TooFewSentences, rules).toStdString(), ::testing::HasSubstr("7"));
}
