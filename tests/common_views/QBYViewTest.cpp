// SPDX-License-Identifier: MIT
#include "common_views/QBYView.h"
#include "common_views/FlippedView.h"
#include "platform/views/Painter.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

namespace {

constexpr Color red{1, 0, 0, 1};
constexpr Color faintRed{1, 0, 0, 0.5};

class RecordingPainter : public Painter {
public:
    void fillRect(const QRectF &rect, const Color &color) override { m_fills.emplace_back(rect, color); }
    std::vector<std::pair<QRectF, Color>> m_fills;
};

} // namespace

class QBYViewTest : public ::testing::Test {
protected:
    QBYViewTest()
    {
        QObject::connect(&m_view, &View::displayNeeded, &m_view, [this] { ++m_redraws; });
    }

    QBYView m_view{{10, 20, 30, 40}};
    int m_redraws = 0;
};

TEST_F(QBYViewTest, HasNoColourAtFirst)
{
    EXPECT_EQ(m_view.backgroundColor(), std::nullopt);
}

TEST_F(QBYViewTest, AnEqualColourAsksForNoSecondRedraw)
{
    m_view.setBackgroundColor(red);
    m_view.setBackgroundColor(Color{1, 0, 0, 1});
    EXPECT_EQ(m_redraws, 1);
    EXPECT_EQ(m_view.backgroundColor(), red);
}

TEST_F(QBYViewTest, EveryOtherColourAsksForARedraw)
{
    m_view.setBackgroundColor(red);
    m_view.setBackgroundColor(faintRed);
    EXPECT_EQ(m_redraws, 2);
    m_view.setBackgroundColor(std::nullopt);
    EXPECT_EQ(m_redraws, 3);
    EXPECT_EQ(m_view.backgroundColor(), std::nullopt);
}

TEST_F(QBYViewTest, AViewWithoutAColourAsksForARedrawEvenIfItStaysWithout)
{
    m_view.setBackgroundColor(std::nullopt);
    m_view.setBackgroundColor(std::nullopt);
    EXPECT_EQ(m_redraws, 2);
}

TEST_F(QBYViewTest, FillsItsWholeBoundsEvenIfLittleIsDirty)
{
    RecordingPainter painter;
    m_view.setBackgroundColor(red);
    m_view.drawRect({1, 1, 2, 2}, painter);
    EXPECT_THAT(painter.m_fills, ElementsAre(Pair(QRectF(0, 0, 30, 40), red)));
}

TEST_F(QBYViewTest, DrawsNothingWithoutAColour)
{
    RecordingPainter painter;
    m_view.drawRect(m_view.bounds(), painter);
    EXPECT_THAT(painter.m_fills, IsEmpty());
}

TEST_F(QBYViewTest, AListenerOfTheRedrawCanReadTheNewColour)
{
    std::optional<Color> seen;
    QObject::connect(&m_view, &View::displayNeeded, &m_view, [&] { seen = m_view.backgroundColor(); });
    m_view.setBackgroundColor(red);
    EXPECT_EQ(seen, red);
}

TEST_F(QBYViewTest, AReaderOnAnotherThreadNeverSeesHalfAColour)
{
    constexpr Color dark{0, 0, 0, 0};
    constexpr Color light{1, 1, 1, 1};
    m_view.setBackgroundColor(dark);
    std::atomic<bool> isDone = false;
    std::thread writer([&] {
        for (int i = 0; i < 20000; ++i)
            m_view.setBackgroundColor(i % 2 ? dark : light);
        isDone = true;
    });
    int halves = 0;
    while (!isDone) {
        const std::optional<Color> color = m_view.backgroundColor();
        halves += color != dark && color != light;
    }
    writer.join();
    EXPECT_EQ(halves, 0);
}

TEST(FlippedView, HasItsOriginAtTheTopLeft)
{
    EXPECT_TRUE(FlippedView().isFlipped());
    EXPECT_FALSE(QBYView().isFlipped());
}
