// SPDX-License-Identifier: MIT
// Updates of the panel without the counting service.
#include "presentation/WordCounterViewController.h"

#include "platform/system/MainQueue.h"
#include "tests/presentation/CountingPanel.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const QStringList zeros = textsFor({0, 0, 0, 0, 0, 0, 0, 0});

// Two words in one sentence, in one line.
const AttributedString twoWords(QStringLiteral("Two words."));
const QStringList twoWordsCounted = textsFor({2, 9, 10, 1, 1, 1, 1, 0});

/// Runs the event loop and makes one check after each turn.
void checkAfterEachTurn(const std::vector<std::function<void()>> &looks)
{
    size_t taken = 0;
    std::function<void()> look = [&] {
        looks[taken]();
        if (++taken < looks.size())
            MainQueue::async(look);
    };
    MainQueue::async(look);
    EXPECT_TRUE(waitUntil([&] { return taken == looks.size(); }));
}

void runOneTurn()
{
    checkAfterEachTurn({[] {}});
}

class FixedMeasurer : public TextMeasurer {
public:
    [[nodiscard]] QSizeF buttonSize(const QString & /*title*/) const override { return {80, 30}; }
    [[nodiscard]] QSizeF labelSize(const QString &text) const override
    {
        return {static_cast<double>(text.size()), 11};
    }
};

} // namespace

class DirectUpdateTest : public QuillbayTest { };

TEST_F(DirectUpdateTest, HasAnEmptyModelFromTheStart)
{
    const auto controller = std::make_shared<WordCounterViewController>();
    ASSERT_NE(controller->wordCounter(), nullptr);
    EXPECT_EQ(controller->wordCounter()->formattedStringStyle(), 0);
    EXPECT_EQ(controller->wordCounter()->statsRepresentation(), QBYWordCounterStats());
    EXPECT_FALSE(controller->isAsyncCountOperationInProgress());
}

TEST_F(DirectUpdateTest, AnUpdateFillsTheLabelsOfTheInterfaceFile)
{
    const auto controller = std::make_shared<WordCounterViewController>();
    controller->wordCounter()->setFormattedStringStyle(1);
    EXPECT_FALSE(controller->isViewLoaded());
    controller->view();
    controller->updateInterfaceWithPrepopulatedStats({.numberOfWords = 12});
    EXPECT_EQ(controller->wordCountTextField()->stringValue(), QStringLiteral("•Words: 12"));
}

TEST_F(DirectUpdateTest, AStyledTextIsCountedInTheNextTurn)
{
    const CountingPanel panel;
    panel.controller->updateStatsWithAttributedString(twoWords);
    EXPECT_EQ(panel.texts(), untouched);
    EXPECT_FALSE(panel.controller->wordCounter()->attributedStringToCount());
    runOneTurn();
    EXPECT_EQ(panel.texts(), twoWordsCounted);
    EXPECT_EQ(panel.controller->wordCounter()->attributedStringToCount(), twoWords);
    EXPECT_THAT(panel.delegate.calls, ElementsAre("relayout"));
}

TEST_F(DirectUpdateTest, AWordRecordIsShownInTheNextTurn)
{
    const CountingPanel panel;
    panel.controller->updateStatsWithDocXMetaData({.numberOfWords = 1,
        .numberOfCharacters = 2,
        .numberOfCharactersWithWhitespace = 3,
        .numberOfLines = 4,
        .numberOfSentences = 5,
        .numberOfParagraphs = 6,
        .numberOfHardLineBreaks = 7,
        .numberOfIndentedParagraphs = 8});
    EXPECT_EQ(panel.texts(), untouched);
    runOneTurn();
    EXPECT_EQ(panel.texts(), textsFor({1, 2, 3, 5, 4, 7, 6, 8}));
    EXPECT_THAT(panel.delegate.calls, ElementsAre("relayout"));
}

TEST_F(DirectUpdateTest, AStringIsCountedTwoTurnsLaterInHelveticaOf12Points)
{
    CountingPanel panel;
    panel.controller->updateStatsWithString(twoWords.string());
    EXPECT_EQ(panel.texts(), untouched);
    checkAfterEachTurn({[&panel] { EXPECT_EQ(panel.texts(), untouched); },
        [&panel] { EXPECT_EQ(panel.texts(), twoWordsCounted); }});
    TextAttributes helvetica;
    helvetica.font = FontAttributes{.family = QStringLiteral("Helvetica"), .pointSize = 12};
    EXPECT_EQ(panel.controller->wordCounter()->attributedStringToCount(),
        AttributedString(twoWords.string(), helvetica));
}

TEST_F(DirectUpdateTest, EveryStringLogsAWarning)
{
    const CountingPanel panel;
    const RecordingLogSink log;
    const auto warning = QStringLiteral(
        "Called update stats with string..you should use the updateStatsWithAttributedString: if "
        "possible...as "
        "it will result in more accurate line number calculations. We are going to default to a 12 point "
        "helvitica font.");
    panel.controller->updateStatsWithString(QStringLiteral("one"));
    EXPECT_THAT(log.messages(), ElementsAre(warning));
    panel.controller->updateStatsWithString({});
    EXPECT_THAT(log.messages(), ElementsAre(warning, warning));
    checkAfterEachTurn({[] {}, [] {}});
    EXPECT_EQ(panel.texts(), zeros);
}

TEST_F(DirectUpdateTest, ARecordOfZerosIsShownAtOnce)
{
    const CountingPanel panel;
    panel.controller->updateInterfaceWithPrepopulatedStats({});
    EXPECT_EQ(panel.texts(), zeros);
    EXPECT_THAT(panel.delegate.calls, ElementsAre("relayout"));
}

TEST_F(DirectUpdateTest, ARecordOfAnotherPanelIsShownAsItIs)
{
    const CountingPanel panel;
    const QBYWordCounterStats stats{.numberOfWords = 1,
        .numberOfCharacters = 2,
        .numberOfCharactersIncludingWhitespace = 3,
        .numberOfSentences = 4,
        .numberOfLines = 5,
        .numberOfHardLineBreaks = 6,
        .numberOfParagraphs = 7,
        .numberOfIndentedParagraphs = 8};
    panel.controller->updateInterfaceWithPrepopulatedStats(stats);
    EXPECT_EQ(panel.texts(), textsFor({1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(panel.controller->wordCounter()->statsRepresentation(), stats);
}

TEST_F(DirectUpdateTest, HiddenLabelsAreFilledToo)
{
    preferOnly({});
    const CountingPanel panel;
    ASSERT_EQ(panel.controller->visibleTextfieldsForLayout().size(), 1U);
    panel.controller->updateInterfaceWithPrepopulatedStats({});
    EXPECT_EQ(panel.texts(), zeros);
}

TEST_F(DirectUpdateTest, LabelsTakeTheSizeOfTheirTextsAndStayWhereTheyAre)
{
    CountingPanel panel;
    panel.controller->wordCounter()->updateModelWithPrepopulatedStats({});
    std::vector<QPointF> origins;
    for (const auto &label : panel.labels) {
        label->setTextMeasurer(std::make_shared<FixedMeasurer>());
        label->setFrameOrigin(label->frame().topLeft() + QPointF(1, 1)); // to a wrong place
        origins.push_back(label->frame().topLeft());
    }
    panel.delegate.calls.clear();
    panel.controller->updateLabels();
    for (size_t i = 0; i < panel.labels.size(); ++i) {
        EXPECT_EQ(panel.labels[i]->frame().width(),
            static_cast<double>(zeros.at(static_cast<qsizetype>(i)).size()));
        EXPECT_EQ(panel.labels[i]->frame().topLeft(), origins[i]);
    }
    EXPECT_THAT(panel.delegate.calls, IsEmpty());
}

TEST_F(DirectUpdateTest, APanelWithoutAViewCountsToo)
{
    const auto controller = std::make_shared<WordCounterViewController>();
    controller->updateStatsWithAttributedString(twoWords);
    runOneTurn();
    EXPECT_EQ(controller->wordCounter()->numberOfWords(), 2U);
}

TEST_F(DirectUpdateTest, AScheduledUpdateKeepsThePanelAlive)
{
    auto controller = std::make_shared<WordCounterViewController>();
    const std::weak_ptr<WordCounterViewController> watched = controller;
    const std::shared_ptr<WordCounterModel> model = controller->wordCounter();
    controller->updateStatsWithString(twoWords.string());
    controller.reset();
    checkAfterEachTurn({[&watched] { EXPECT_FALSE(watched.expired()); }, [] {}});
    EXPECT_EQ(model->numberOfWords(), 2U);
    EXPECT_TRUE(watched.expired());
}
