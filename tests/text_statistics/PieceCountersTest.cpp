// SPDX-License-Identifier: MIT
// Long texts on several threads.
#include "text_statistics/PieceCounters.h"

#include "tests/harness/QuillbayTest.h"
#include "text_statistics/WordCounterModel.h"

#include <algorithm>

namespace {

CountingRules rules()
{
    CountingRules rules;
    rules.text.localeIdentifier = [] { return QStringLiteral("en_US"); };
    rules.text.sentencesNeedTerminalPunctuation = true;
    rules.page = {.paperName = std::nullopt, .paperSize = {612, 792}, .leftMargin = 72, .rightMargin = 72};
    return rules;
}

/// Paragraphs of many lengths and several scripts, no two alike; longer than a thread is worth.
QString longText()
{
    QString text;
    for (int i = 0; text.size() < 2 * PieceCounters::minLengthForThreads; ++i) {
        text += QStringLiteral("\tNo. %1 begins a paragraph; words, слова, λέξεις, 言葉 follow. ").arg(i)
            + QStringLiteral("office %1 and b. ").arg(i * 7919 % 1000).repeated(i % 37)
            + (i % 5 == 0 ? QStringLiteral("\r\n\n") : QStringLiteral("\n"));
    }
    return text;
}

AttributedString inTwoStyles(const QString &text)
{
    AttributedStringBuilder builder;
    builder.append(text.first(text.size() / 3), {});
    TextAttributes large;
    large.font = FontAttributes{.family = QStringLiteral("Times"), .pointSize = 18};
    builder.append(text.sliced(text.size() / 3), large);
    return builder.build();
}

class PieceCountersTest : public QuillbayTest {
protected:
    static QBYWordCounterStats countWith(
        WordCounterModel &model, const AttributedString &text, std::vector<qsizetype> *positions = nullptr)
    {
        if (positions)
            model.setProgress([positions](qsizetype position) { positions->push_back(position); });
        model.setAttributedStringToCount(text);
        return model.statsRepresentation();
    }

    static QBYWordCounterStats countOnOneThread(const AttributedString &text)
    {
        WordCounterModel model(rules);
        return countWith(model, text);
    }
};

} // namespace

TEST_F(PieceCountersTest, CountsAsOneThreadDoes)
{
    const AttributedString text = inTwoStyles(longText());
    const QBYWordCounterStats expected = countOnOneThread(text);
    EXPECT_GT(expected.numberOfLines, expected.numberOfHardLineBreaks);
    for (const int threads : {1, 2, 5}) {
        WordCounterModel model(rules);
        model.startThreads(threads);
        EXPECT_EQ(countWith(model, text), expected) << threads;
        EXPECT_EQ(countWith(model, text), expected) << threads;
    }
}

TEST_F(PieceCountersTest, CountsOnlyWhatIsNotRemembered)
{
    WordCounterModel model(rules);
    model.rememberParagraphs();
    model.startThreads(3);
    const QString text = longText();
    EXPECT_EQ(countWith(model, AttributedString(text)), countOnOneThread(AttributedString(text)));
    const QString edited = QStringLiteral("Another start. ") + text + text.first(70'000);
    EXPECT_EQ(countWith(model, AttributedString(edited)), countOnOneThread(AttributedString(edited)));
}

TEST_F(PieceCountersTest, ReportsProgressAcrossParagraphsAndWithinALongOne)
{
    const QString paragraph = longText().remove(QChar(u'\n')).remove(QChar(u'\r'));
    for (const bool remembers : {false, true}) {
        for (const QString &text : {longText(), paragraph}) {
            WordCounterModel model(rules);
            if (remembers)
                model.rememberParagraphs();
            model.startThreads(2);
            std::vector<qsizetype> positions;
            countWith(model, AttributedString(text), &positions);
            EXPECT_GT(positions.size(), 8U);
            EXPECT_TRUE(std::is_sorted(positions.begin(), positions.end()));
            EXPECT_EQ(positions.back(), text.size());
            EXPECT_TRUE(std::any_of(positions.begin(), positions.end(), [&](qsizetype position) {
                return position > text.size() / 3 && position < text.size() * 2 / 3;
            }));
        }
    }
}

TEST_F(PieceCountersTest, EmptyAndShortTextsNeedNoThread)
{
    WordCounterModel model(rules);
    model.startThreads(2);
    EXPECT_EQ(countWith(model, AttributedString()), QBYWordCounterStats());
    const AttributedString text(QStringLiteral("One. Two.\n"));
    EXPECT_EQ(countWith(model, text), countOnOneThread(text));
}
