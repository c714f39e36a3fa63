// SPDX-License-Identifier: MIT
// The interface file of the panel, and what the panel reads from it.
#include "tests/harness/QuillbayTest.h"
#include "tests/presentation/StatsPanel.h"

namespace {

class PanelInterfaceFile : public QuillbayTest {
protected:
    /// A copy of the panel's file with one text replaced by another.
    static QString changedFile(const QByteArray &before, const QByteArray &after)
    {
        QByteArray contents = readFile(BaseWordCounterViewController::panelInterfaceFile());
        EXPECT_TRUE(contents.contains(before));
        return writeFile(QStringLiteral("Changed.ui"), contents.replace(before, after));
    }
};

} // namespace

TEST_F(PanelInterfaceFile, GivesEightLabelsWithTagsInCanonicalOrderInSlots)
{
    preferOnly(everyStatistic);
    BaseWordCounterViewController panel;
    const QSizeF size = panel.view()->frame().size();
    ASSERT_EQ(panel.allTextfieldsForLayout().size(), 8U);
    EXPECT_EQ(panel.labelPositionPolicy(), WordCounterLabelPositionPolicySlots);
    double top = size.height();
    for (size_t i = 0; i < 8; ++i) {
        const std::shared_ptr<Label> label = panel.allTextfieldsForLayout().at(i);
        EXPECT_EQ(label->tag(), static_cast<qint64>(i + 1));
        EXPECT_EQ(label->frame().topLeft(), panel.labelPositions().at(i));
        EXPECT_EQ(label->frame().y() + label->frame().height(), top);
        EXPECT_EQ(label->superview(), panel.view().get());
        top = label->frame().y() - 11;
    }
    EXPECT_EQ(panel.wordCountTextField()->identifier(), QStringLiteral("wordCountTextField"));
    EXPECT_EQ(panel.numberOfSentecesTextField()->identifier(), QStringLiteral("numberOfSentecesTextField"));
    EXPECT_EQ(panel.numberOfIndentedParagraphsTextField()->identifier(),
        QStringLiteral("numberOfIndentedParagraphsTextField"));
}

TEST_F(PanelInterfaceFile, MaySetTheLabelPositionPolicy)
{
    preferOnly({});
    BaseWordCounterViewController panel(changedFile("<number>0</number>", "<number>7</number>"));
    panel.view();
    EXPECT_EQ(panel.labelPositionPolicy(), 7);
}

TEST_F(PanelInterfaceFile, ThatLacksALabelEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // the bus connection has a thread
    BaseWordCounterViewController panel(changedFile("numberOfLinesTextField", "someOtherTextField"));
    EXPECT_DEATH(panel.view(), "numberOfLinesTextField");
}
