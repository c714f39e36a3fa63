// SPDX-License-Identifier: MIT
#include "platform/views/Controls.h"
#include "platform/views/Painter.h"

#include <gtest/gtest.h>

namespace {

class FilledRects : public Painter {
public:
    void fillRect(const QRectF &rect, const Color &color) override { m_rects.emplace_back(rect, color); }
    std::vector<std::pair<QRectF, Color>> m_rects;
};

} // namespace

TEST(Button, ClicksOnlyWhereItIsEnabled)
{
    Button button;
    int clicks = 0;
    QObject::connect(&button, &Button::clicked, &button, [&clicks] { ++clicks; });
    button.performClick();
    button.setEnabled(false);
    button.performClick();
    EXPECT_EQ(clicks, 1);
    button.setEnabled(true);
    button.performClick();
    EXPECT_EQ(clicks, 2);
}

TEST(Button, AnnouncesEveryChangeOnce)
{
    Button button;
    int faces = 0;
    int switches = 0;
    QObject::connect(&button, &Button::faceDidChange, &button, [&faces] { ++faces; });
    QObject::connect(&button, &Button::enabledDidChange, &button, [&switches] { ++switches; });
    for (int i = 0; i < 2; ++i) {
        button.setTitle(QStringLiteral("Count"));
        button.setIconName(QStringLiteral("edit-copy"));
        button.setEnabled(false);
    }
    EXPECT_EQ(faces, 2);
    EXPECT_EQ(switches, 1);
    EXPECT_EQ(button.title(), QStringLiteral("Count"));
    EXPECT_EQ(button.iconName(), QStringLiteral("edit-copy"));
}

TEST(ProgressIndicator, TurnsFromStartToStop)
{
    ProgressIndicator indicator;
    int changes = 0;
    QObject::connect(
        &indicator, &ProgressIndicator::animatingDidChange, &indicator, [&changes] { ++changes; });
    EXPECT_FALSE(indicator.isAnimating());
    indicator.startAnimation();
    indicator.startAnimation();
    EXPECT_TRUE(indicator.isAnimating());
    indicator.stopAnimation();
    EXPECT_FALSE(indicator.isAnimating());
    EXPECT_EQ(changes, 2);
}

TEST(Box, FillsItsBoundsWithItsColourOnly)
{
    Box box(Box::Kind::Plain, {5, 6, 30, 40});
    int redraws = 0;
    QObject::connect(&box, &View::displayNeeded, &box, [&redraws] { ++redraws; });
    FilledRects painter;
    box.drawRect(box.bounds(), painter);
    EXPECT_TRUE(painter.m_rects.empty());
    const Color grey{0.5, 0.5, 0.5, 1};
    box.setBackgroundColor(grey);
    box.setBackgroundColor(grey);
    EXPECT_EQ(redraws, 1);
    box.drawRect({0, 0, 1, 1}, painter);
    ASSERT_EQ(painter.m_rects.size(), 1U);
    EXPECT_EQ(painter.m_rects.front(), std::pair(QRectF(0, 0, 30, 40), grey));
    box.setKind(Box::Kind::Separator);
    box.drawRect(box.bounds(), painter);
    EXPECT_EQ(painter.m_rects.size(), 1U);
    EXPECT_EQ(redraws, 2);
}
