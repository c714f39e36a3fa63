// SPDX-License-Identifier: MIT
// Which labels the panel shows, in which order, and how it notifies its delegate.
#include "tests/harness/QuillbayTest.h"
#include "tests/presentation/StatsPanel.h"

namespace {

class LabelVisibility : public QuillbayTest { };

using Tags = std::vector<qint64>;
using Calls = std::vector<std::string>;

} // namespace

TEST_F(LabelVisibility, BeforeLoadingTheListsAreEmptyAndTheDelegateIsNotifiedOfAPlacement)
{
    StatsPanel panel;
    EXPECT_TRUE(panel.controller.visibleTextfieldsForLayout().empty());
    EXPECT_TRUE(panel.controller.allTextfieldsForLayout().empty());
    EXPECT_TRUE(panel.controller.labelPositions().empty());
    panel.controller.repositionLabels();
    EXPECT_EQ(panel.delegate.calls, Calls{"relayout"});
    EXPECT_EQ(panel.label(1)->frame(), QRectF(10, 90, 80, 17));
}

TEST_F(LabelVisibility, LoadingTakesTheSlotsAndAllLabelsInCanonicalOrder)
{
    StatsPanel panel;
    panel.label(1)->setTag(99);
    panel.controller.viewDidLoad();
    for (size_t i = 0; i < StatsPanel::numberOfLabels; ++i) {
        EXPECT_EQ(panel.controller.allTextfieldsForLayout().at(i), panel.labels[i]);
        const double offset = 10 * static_cast<double>(i + 1);
        EXPECT_EQ(panel.controller.labelPositions().at(i), QPointF(offset, 100 - offset));
    }
    panel.label(3)->setFrameOrigin({0, 0});
    panel.controller.updateArray();
    EXPECT_EQ(panel.controller.labelPositions().at(2), QPointF(30, 70)) << "slots are taken once";
}

TEST_F(LabelVisibility, EachPreferenceShowsItsLabel)
{
    const std::vector<std::pair<Preference, qint64>> labels = {{Preference::ShowCharacterCount, 2},
        {Preference::ShowSentencesCount, 4}, {Preference::ShowLineCount, 5},
        {Preference::ShowHardLineBreaksCount, 6}, {Preference::ShowParagraphCount, 7},
        {Preference::ShowHardIndentParagraphCount, 8}};
    StatsPanel panel;
    panel.controller.viewDidLoad();
    for (const auto &[preference, tag] : labels) {
        preferOnly({preference});
        panel.controller.updateArray();
        EXPECT_EQ(panel.visibleTags(), (Tags{1, tag}));
        for (const std::shared_ptr<Label> &label : panel.labels)
            EXPECT_EQ(label->isHidden(), label->tag() != 1 && label->tag() != tag);
    }
}

TEST_F(LabelVisibility, WithEveryOptionalStatisticOffOnlyTheWordsAreShown)
{
    preferOnly({});
    StatsPanel panel;
    panel.controller.viewDidLoad();
    EXPECT_EQ(panel.visibleTags(), Tags{1});
    EXPECT_FALSE(panel.label(1)->isHidden());
}

TEST_F(LabelVisibility, ThePanelLeavesAHiddenWordLabelAsItIs)
{
    preferOnly({Preference::ShowLineCount});
    StatsPanel panel;
    panel.label(1)->setHidden(true);
    panel.controller.viewDidLoad();
    EXPECT_TRUE(panel.label(1)->isHidden());
    EXPECT_EQ(panel.visibleTags(), Tags{5});
}

TEST_F(LabelVisibility, WithoutTheCharacterCountTheOneIncludingWhiteSpaceIsHiddenToo)
{
    StatsPanel panel;
    panel.controller.viewDidLoad();
    preferOnly({Preference::ShowCharacterCountIncludingWhitespace});
    panel.controller.updateArray();
    EXPECT_EQ(panel.visibleTags(), Tags{1});
    preferOnly({Preference::ShowCharacterCount});
    panel.controller.updateArray();
    EXPECT_EQ(panel.visibleTags(), (Tags{1, 2}));
    preferOnly({Preference::ShowCharacterCount, Preference::ShowCharacterCountIncludingWhitespace});
    panel.controller.updateArray();
    EXPECT_EQ(panel.visibleTags(), (Tags{1, 2, 3}));
}

TEST_F(LabelVisibility, LabelsAreShownInTheOrderOfTheirTags)
{
    preferOnly(everyStatistic);
    StatsPanel panel;
    for (size_t i = 0; i < StatsPanel::numberOfLabels; ++i)
        panel.labels[i]->setTag(-static_cast<qint64>(i));
    panel.controller.viewDidLoad();
    EXPECT_EQ(panel.visibleTags(), (Tags{-7, -6, -5, -4, -3, -2, -1, 0}));
    EXPECT_EQ(panel.label(8)->frame().topLeft(), QPointF(10, 90)) << "the lowest tag takes the first slot";
}

TEST_F(LabelVisibility, AChangeOfTheNumberIsNotifiedAfterThePlacement)
{
    preferOnly(everyStatistic);
    StatsPanel panel;
    panel.controller.viewDidLoad();
    EXPECT_EQ(panel.delegate.calls, Calls{"relayout"}) << "all eight were visible before and are now";
    panel.delegate.calls.clear();
    preferOnly({});
    panel.controller.updateArray();
    EXPECT_EQ(panel.delegate.calls, (Calls{"relayout", "count"}));
    panel.delegate.calls.clear();
    panel.controller.updateArray();
    EXPECT_EQ(panel.delegate.calls, Calls{"relayout"});
}

TEST_F(LabelVisibility, OneLabelForAnotherIsNoChangeOfTheNumber)
{
    preferOnly({Preference::ShowLineCount});
    StatsPanel panel;
    panel.controller.viewDidLoad();
    panel.delegate.calls.clear();
    preferOnly({Preference::ShowSentencesCount});
    panel.controller.updateArray();
    EXPECT_EQ(panel.visibleTags(), (Tags{1, 4}));
    EXPECT_EQ(panel.delegate.calls, Calls{"relayout"});
}

TEST_F(LabelVisibility, ADelegateMayImplementPlacementsOnlyAndMayBeAbsentOrDestroyed)
{
    class Host : public WordCounterViewControllerLayoutDelegate {
    public:
        void wordCounterViewControllerDidRelayoutLabels() override { ++placements; }
        int placements = 0;
    };
    StatsPanel panel;
    panel.controller.viewDidLoad();
    {
        Host host;
        panel.controller.setLayoutDelegate(&host);
        preferOnly({Preference::ShowLineCount});
        panel.controller.updateArray();
        EXPECT_EQ(host.placements, 1);
    }
    EXPECT_EQ(panel.controller.layoutDelegate(), nullptr);
    preferOnly({});
    panel.controller.updateArray();
    panel.controller.setLayoutDelegate(nullptr);
    panel.controller.repositionLabels();
    EXPECT_EQ(panel.visibleTags(), Tags{1});
}

TEST_F(LabelVisibility, AnInterfaceFileThatLacksALabelEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // the bus connection has a thread
    StatsPanel panel;
    panel.controller.setNumberOfSentecesTextField(nullptr);
    EXPECT_DEATH(panel.controller.viewDidLoad(), "outlet numberOfSentecesTextField");
}

TEST_F(LabelVisibility, ScreenReadersNameALabelByItsTextWithoutTheBullet)
{
    StatsPanel panel;
    panel.label(1)->setStringValue(QStringLiteral("•Words: 7"));
    panel.controller.viewDidLoad();
    EXPECT_EQ(panel.label(1)->accessibleName(), QStringLiteral("Words: 7"));
    panel.label(1)->setStringValue(QStringLiteral("•Words: 8"));
    EXPECT_EQ(panel.label(1)->accessibleName(), QStringLiteral("Words: 8"));
}
