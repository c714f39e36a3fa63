// SPDX-License-Identifier: MIT
// The placement of the labels. All numbers are points.
#include "tests/harness/QuillbayTest.h"
#include "tests/presentation/StatsPanel.h"

namespace {

class LabelPlacement : public QuillbayTest {
protected:
    static constexpr auto otherPolicy = static_cast<WordCounterLabelPositionPolicy>(7);

    /// A loaded panel that stacks its labels.
    static std::unique_ptr<StatsPanel> stackedPanel(const QSizeF &size = {200, 120})
    {
        auto panel = std::make_unique<StatsPanel>(size);
        panel->controller.setLabelPositionPolicy(WordCounterLabelPositionPolicyStacked);
        panel->controller.viewDidLoad();
        return panel;
    }
};

/// Fits the panel at every placement, like its hosts.
class FittingHost : public WordCounterViewControllerLayoutDelegate {
public:
    explicit FittingHost(BaseWordCounterViewController &panel)
        : m_panel(panel)
    {
    }
    void wordCounterViewControllerDidRelayoutLabels() override
    {
        ++placements;
        m_panel.adjustViewHeightToFitVisibleLabels();
    }
    int placements = 0;

private:
    BaseWordCounterViewController &m_panel;
};

} // namespace

TEST_F(LabelPlacement, SlotsAreThePolicyUnlessSetOtherwise)
{
    EXPECT_EQ(StatsPanel().controller.labelPositionPolicy(), WordCounterLabelPositionPolicySlots);
    EXPECT_EQ(static_cast<qint64>(WordCounterLabelPositionPolicySlots), 0);
    EXPECT_EQ(static_cast<qint64>(WordCounterLabelPositionPolicyStacked), 1);
}

TEST_F(LabelPlacement, VisibleLabelsCloseUpIntoTheFirstSlotsAndKeepTheirSizes)
{
    preferOnly({Preference::ShowSentencesCount, Preference::ShowHardIndentParagraphCount});
    StatsPanel panel;
    panel.label(8)->setFrameSize({33.5, 12});
    panel.controller.viewDidLoad();
    EXPECT_EQ(panel.label(1)->frame(), QRectF(10, 90, 80, 17));
    EXPECT_EQ(panel.label(4)->frame(), QRectF(20, 80, 80, 17));
    EXPECT_EQ(panel.label(8)->frame(), QRectF(30, 70, 33.5, 12));
    EXPECT_EQ(panel.label(2)->frame(), QRectF(20, 80, 80, 17)) << "a hidden label stays";
}

TEST_F(LabelPlacement, StackedLabelsHangFromTheTopElevenPointsApart)
{
    preferOnly({Preference::ShowLineCount});
    const auto panel = stackedPanel();
    panel->label(5)->setFrameSize({100, 17});
    panel->controller.repositionLabels();
    EXPECT_EQ(panel->label(1)->frame(), QRectF(60, 103, 80, 17));
    EXPECT_EQ(panel->label(5)->frame(), QRectF(50, 75, 100, 17));
}

TEST_F(LabelPlacement, AnyOtherPolicyStacksToo)
{
    preferOnly({});
    const auto panel = stackedPanel();
    panel->label(1)->setFrameOrigin({0, 0});
    panel->controller.setLabelPositionPolicy(otherPolicy);
    panel->controller.repositionLabels();
    EXPECT_EQ(panel->label(1)->frame(), QRectF(60, 103, 80, 17));
}

TEST_F(LabelPlacement, StackedOriginsAreRoundedDown)
{
    preferOnly({Preference::ShowLineCount});
    const auto panel = stackedPanel();
    panel->label(1)->setFrameSize({81, 17.25});
    panel->label(5)->setFrameSize({300.5, 150.25});
    panel->controller.repositionLabels();
    EXPECT_EQ(panel->label(1)->frame().topLeft(), QPointF(59, 102));
    EXPECT_EQ(panel->label(5)->frame().topLeft(), QPointF(-51, -60)) << "down, not towards 0";
}

TEST_F(LabelPlacement, AStackIsMeasuredInTheSuperviewOfItsFirstLabel)
{
    preferOnly({Preference::ShowLineCount});
    StatsPanel panel({1000, 1000});
    const auto box = std::make_shared<View>(QRectF(300, 300, 100, 60));
    panel.view->addSubview(box);
    box->addSubview(panel.label(1));
    panel.controller.setLabelPositionPolicy(WordCounterLabelPositionPolicyStacked);
    panel.controller.viewDidLoad();
    EXPECT_EQ(panel.label(1)->frame().topLeft(), QPointF(10, 43));
    EXPECT_EQ(panel.label(5)->frame().topLeft(), QPointF(10, 15));
}

TEST_F(LabelPlacement, LabelsInNoSuperviewAreStackedAroundTheOrigin)
{
    preferOnly({});
    StatsPanel panel;
    panel.label(1)->removeFromSuperview();
    panel.controller.setLabelPositionPolicy(WordCounterLabelPositionPolicyStacked);
    panel.controller.viewDidLoad();
    EXPECT_EQ(panel.label(1)->frame().topLeft(), QPointF(-40, -17));
}

TEST_F(LabelPlacement, FittingEndsThePanelFiveAndAHalfPointsBelowTheLastLabel)
{
    preferOnly({Preference::ShowLineCount});
    const auto panel = stackedPanel();
    panel->controller.adjustViewHeightToFitVisibleLabels();
    EXPECT_EQ(panel->view->frame(), QRectF(0, 0, 200, 50));
    EXPECT_EQ(panel->label(1)->frame().y(), 33) << "the frame change stacked the labels anew";
    EXPECT_EQ(panel->label(5)->frame().y(), 5);
    panel->delegate.calls.clear();
    panel->controller.adjustViewHeightToFitVisibleLabels();
    EXPECT_EQ(panel->view->frame(), QRectF(0, 0, 200, 50));
    EXPECT_TRUE(panel->delegate.calls.empty()) << "the same size again is no frame change";
}

TEST_F(LabelPlacement, FittingAtEveryPlacementTerminates)
{
    preferOnly({Preference::ShowLineCount});
    const auto panel = stackedPanel();
    FittingHost host(panel->controller);
    panel->controller.setLayoutDelegate(&host);
    panel->controller.repositionLabels();
    EXPECT_EQ(panel->view->frame().height(), 50);
    EXPECT_EQ(host.placements, 2) << "the placement asked for, and the one after the fitting";
    preferOnly(everyStatistic);
    panel->controller.updateArray();
    EXPECT_EQ(panel->view->frame().height(), 7 * (17 + 11) + 17 + 5);
    EXPECT_EQ(panel->label(8)->frame().y(), 5);
}

TEST_F(LabelPlacement, WithoutAVisibleLabelEachFittingGrowsThePanelByFivePoints)
{
    preferOnly({});
    const auto panel = stackedPanel();
    panel->controller.setVisibleTextfieldsForLayout({});
    panel->controller.adjustViewHeightToFitVisibleLabels();
    EXPECT_EQ(panel->view->frame().size(), QSizeF(200, 125));
    panel->controller.adjustViewHeightToFitVisibleLabels();
    EXPECT_EQ(panel->view->frame().size(), QSizeF(200, 130));
}

TEST_F(LabelPlacement, AFrameChangePlacesTheLabelsAgainAndRoundsEverySubviewDownToWholePoints)
{
    preferOnly({});
    StatsPanel panel;
    const auto other = std::make_shared<View>(QRectF(10.6, -0.4, 5.5, 5.5));
    const auto inner = std::make_shared<View>(QRectF(1.5, 1.5, 1, 1));
    other->addSubview(inner);
    panel.view->addSubview(other);
    panel.label(1)->setFrameOrigin({7.75, 7.75});
    panel.controller.viewDidLoad();
    panel.delegate.calls.clear();
    panel.view->setFrameSize({200, 121});
    EXPECT_EQ(panel.delegate.calls, std::vector<std::string>{"relayout"});
    EXPECT_EQ(other->frame(), QRectF(10, -1, 5.5, 5.5));
    EXPECT_EQ(inner->frame(), QRectF(1.5, 1.5, 1, 1)) << "only direct subviews are moved";
    EXPECT_EQ(panel.label(1)->frame().topLeft(), QPointF(7, 7)) << "its slot was at 7.75";
}

TEST_F(LabelPlacement, LabelsTakeTheSizesOfTheirTextsAndArePlacedOnce)
{
    class TenPerCharacter : public TextMeasurer {
    public:
        [[nodiscard]] QSizeF buttonSize(const QString & /*title*/) const override { return {80, 30}; }
        [[nodiscard]] QSizeF labelSize(const QString &text) const override
        {
            return {10.0 * static_cast<double>(text.size()), 20};
        }
    };
    preferOnly({Preference::ShowLineCount});
    const auto panel = stackedPanel();
    for (const std::shared_ptr<Label> &label : panel->labels) {
        label->setTextMeasurer(std::make_shared<TenPerCharacter>());
        label->setStringValue(QStringLiteral("12345"));
    }
    panel->delegate.calls.clear();
    panel->controller.fitLabels();
    EXPECT_EQ(panel->label(1)->frame(), QRectF(75, 100, 50, 20));
    EXPECT_EQ(panel->label(5)->frame(), QRectF(75, 69, 50, 20));
    EXPECT_EQ(panel->label(2)->frame().size(), QSizeF(50, 20)) << "hidden labels too";
    EXPECT_EQ(panel->delegate.calls, std::vector<std::string>{"relayout"});
}

TEST_F(LabelPlacement, ADestroyedPanelNoLongerFollowsItsView)
{
    preferOnly({});
    std::shared_ptr<View> view;
    std::shared_ptr<Label> label;
    {
        const auto panel = stackedPanel();
        view = panel->view;
        label = panel->label(1);
    }
    view->setFrameSize({400, 400});
    EXPECT_EQ(label->frame().topLeft(), QPointF(60, 103));
}
