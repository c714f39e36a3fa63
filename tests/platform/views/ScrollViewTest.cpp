// SPDX-License-Identifier: MIT
#include "platform/views/ScrollView.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

class TopLeftView : public View {
public:
    using View::View;
    [[nodiscard]] bool isFlipped() const override { return true; }
};

} // namespace

/// A scroll view of 200 by 300 around a document of 1000 by 1000.
class ScrollViewTest : public ::testing::Test {
protected:
    void show(const std::shared_ptr<View> &document) { m_scrollView.setDocumentView(document); }
    [[nodiscard]] QPointF position() const { return m_scrollView.contentView().bounds().topLeft(); }

    ScrollView m_scrollView{{50, 60, 200, 300}};
    const std::shared_ptr<View> m_upright = std::make_shared<View>(QRectF(0, 0, 1000, 1000));
    const std::shared_ptr<View> m_flipped = std::make_shared<TopLeftView>(QRectF(0, 0, 1000, 1000));
};

TEST_F(ScrollViewTest, TheContentFillsItInEverySize)
{
    EXPECT_EQ(m_scrollView.contentView().frame(), QRectF(0, 0, 200, 300));
    QSizeF sizeSeenByListeners;
    QObject::connect(&m_scrollView, &View::frameDidChange, &m_scrollView,
        [&] { sizeSeenByListeners = m_scrollView.contentSize(); });
    m_scrollView.setFrame({0, 0, 400, 100});
    EXPECT_EQ(m_scrollView.contentSize(), QSizeF(400, 100));
    EXPECT_EQ(sizeSeenByListeners, QSizeF(400, 100));
}

TEST_F(ScrollViewTest, HasOneDocumentAtATime)
{
    show(m_upright);
    show(m_flipped);
    EXPECT_EQ(m_scrollView.documentView(), m_flipped.get());
    EXPECT_EQ(m_scrollView.contentView().subviews().size(), 1U);
    EXPECT_EQ(m_upright->superview(), nullptr);
    show(nullptr);
    EXPECT_EQ(m_scrollView.documentView(), nullptr);
}

TEST_F(ScrollViewTest, TheContentIsFlippedAsItsDocumentIs)
{
    EXPECT_FALSE(m_scrollView.contentView().isFlipped());
    show(m_flipped);
    EXPECT_TRUE(m_scrollView.contentView().isFlipped());
}

TEST_F(ScrollViewTest, ScrollsToAnyPointAndAnnouncesIt)
{
    show(m_upright);
    int announced = 0;
    QObject::connect(&m_scrollView.contentView(), &ClipView::boundsDidChange, &m_scrollView,
        [&announced] { ++announced; });
    m_scrollView.contentView().scrollToPoint({-5, 2000});
    m_scrollView.contentView().scrollToPoint({-5, 2000});
    EXPECT_EQ(m_scrollView.contentView().bounds(), QRectF(-5, 2000, 200, 300));
    EXPECT_EQ(announced, 1);
}

TEST_F(ScrollViewTest, MagnifiesUntilTheRectangleJustFitsAndShowsItInTheMiddle)
{
    show(m_flipped);
    m_scrollView.magnifyToFitRect({100, 200, 400, 400});
    EXPECT_EQ(m_scrollView.magnification(), 0.5);
    EXPECT_EQ(m_scrollView.contentView().bounds(), QRectF(100, 100, 400, 600));
    EXPECT_EQ(m_flipped->frame(), QRectF(0, 0, 1000, 1000));
    EXPECT_EQ(m_scrollView.contentSize(), QSizeF(200, 300));
}

TEST_F(ScrollViewTest, TheTighterSideDecidesTheMagnification)
{
    m_scrollView.magnifyToFitRect({0, 0, 100, 600});
    EXPECT_EQ(m_scrollView.magnification(), 0.5);
    m_scrollView.magnifyToFitRect({0, 0, 160, 100});
    EXPECT_EQ(m_scrollView.magnification(), 1.25);
}

TEST_F(ScrollViewTest, MagnificationStaysWithinItsLimits)
{
    m_scrollView.magnifyToFitRect({0, 0, 1e6, 1e6});
    EXPECT_EQ(m_scrollView.magnification(), 0.25);
    m_scrollView.setMinMagnification(0.15);
    m_scrollView.magnifyToFitRect({0, 0, 1e6, 1e6});
    EXPECT_EQ(m_scrollView.magnification(), 0.15);
    m_scrollView.magnifyToFitRect({0, 0, 1, 1});
    EXPECT_EQ(m_scrollView.magnification(), 4);
}

TEST_F(ScrollViewTest, AMinimumOutsideTheLimitsIsIgnored)
{
    for (const double factor : {0.0, -1.0, 4.1, std::numeric_limits<double>::quiet_NaN()}) {
        m_scrollView.setMinMagnification(factor);
        EXPECT_EQ(m_scrollView.minMagnification(), 0.25) << factor;
    }
}

TEST_F(ScrollViewTest, AnEmptyOrInfiniteRectangleMagnifiesNothing)
{
    const double endless = std::numeric_limits<double>::infinity();
    m_scrollView.magnifyToFitRect({0, 0, 400, 600});
    m_scrollView.contentView().scrollToPoint({7, 8});
    for (const QRectF &rect : {QRectF(), QRectF(0, 0, 10, 0), QRectF(0, 0, -10, 10),
             QRectF(0, 0, endless, 10), QRectF(std::numeric_limits<double>::quiet_NaN(), 0, 10, 10)}) {
        m_scrollView.magnifyToFitRect(rect);
        EXPECT_EQ(m_scrollView.magnification(), 0.5);
        EXPECT_EQ(position(), QPointF(7, 8));
    }
}

TEST_F(ScrollViewTest, TheWheelMovesAFlippedDocumentTowardsSmallerYToRevealWhatIsAbove)
{
    show(m_flipped);
    m_scrollView.contentView().scrollToPoint({100, 100});
    m_scrollView.scrollWheel({0, 30});
    EXPECT_EQ(position(), QPointF(100, 70));
    m_scrollView.scrollWheel({-10, 0});
    EXPECT_EQ(position(), QPointF(110, 70));
}

TEST_F(ScrollViewTest, TheWheelMovesAnUprightDocumentTowardsLargerYToRevealWhatIsAbove)
{
    show(m_upright);
    m_scrollView.contentView().scrollToPoint({0, 100});
    m_scrollView.scrollWheel({0, 30});
    EXPECT_EQ(position(), QPointF(0, 130));
}

TEST_F(ScrollViewTest, TheWheelMovesAMagnifiedDocumentAsFarOnTheScreen)
{
    show(m_flipped);
    m_scrollView.magnifyToFitRect({0, 0, 100, 100});
    ASSERT_EQ(m_scrollView.magnification(), 2);
    m_scrollView.contentView().scrollToPoint({0, 100});
    m_scrollView.scrollWheel({0, -30});
    EXPECT_EQ(position(), QPointF(0, 115));
}

TEST_F(ScrollViewTest, TheWheelStopsAtTheEndsOfTheDocument)
{
    show(m_flipped);
    m_scrollView.scrollWheel({0, -5000});
    EXPECT_EQ(position(), QPointF(0, 700));
    m_scrollView.scrollWheel({0, 5000});
    EXPECT_EQ(position(), QPointF(0, 0));
}

TEST_F(ScrollViewTest, TheWheelScrollsOnlyInItsDirection)
{
    show(m_flipped);
    m_scrollView.contentView().scrollToPoint({-5, 0});
    m_scrollView.scrollWheel({0, -30});
    EXPECT_EQ(position(), QPointF(-5, 30));
}

TEST_F(ScrollViewTest, TheWheelDoesNotScrollAFullyVisibleDocument)
{
    show(std::make_shared<View>(QRectF(0, 0, 200, 100)));
    m_scrollView.contentView().scrollToPoint({0, -150});
    m_scrollView.scrollWheel({0, 30});
    EXPECT_EQ(position(), QPointF(0, -150));
}

TEST_F(ScrollViewTest, AnEventThatScrollsNothingScrollsTheEnclosingView)
{
    const auto inner = std::make_shared<ScrollView>(QRectF(0, 0, 1000, 1000));
    inner->setDocumentView(std::make_shared<TopLeftView>(QRectF(0, 0, 1000, 1500)));
    show(inner);
    inner->documentView()->scrollWheel({0, -400});
    EXPECT_EQ(inner->contentView().bounds().topLeft(), QPointF(0, 400));
    EXPECT_EQ(position(), QPointF(0, 0));
    inner->documentView()->scrollWheel({-20, 0}); // cannot scroll sideways
    EXPECT_EQ(position(), QPointF(20, 0));
}

TEST_F(ScrollViewTest, HasNoScrollerByDefault)
{
    EXPECT_FALSE(m_scrollView.hasVerticalScroller());
    m_scrollView.setVerticalScrollerValue(0.5);
    EXPECT_EQ(m_scrollView.verticalScrollerValue(), std::nullopt);
}

TEST_F(ScrollViewTest, TheScrollerShowsTheScrollPosition)
{
    show(m_upright);
    m_scrollView.setHasVerticalScroller(true);
    EXPECT_EQ(m_scrollView.verticalScrollerValue(), 1.0); // y 0 is the bottom
    m_scrollView.scrollWheel({0, 350});
    EXPECT_EQ(m_scrollView.verticalScrollerValue(), 0.5);
    show(m_flipped);
    m_scrollView.scrollWheel({0, 175});
    EXPECT_EQ(m_scrollView.verticalScrollerValue(), 0.25);
}

TEST_F(ScrollViewTest, TheScrollerMovesBetweenItsEndsAndIsAnnounced)
{
    m_scrollView.setHasVerticalScroller(true);
    int announced = 0;
    QObject::connect(
        &m_scrollView, &ScrollView::verticalScrollerDidChange, &m_scrollView, [&announced] { ++announced; });
    m_scrollView.setVerticalScrollerValue(7);
    EXPECT_EQ(m_scrollView.verticalScrollerValue(), 1.0);
    m_scrollView.setVerticalScrollerValue(1);
    m_scrollView.setVerticalScrollerValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(announced, 1);
    m_scrollView.setHasVerticalScroller(false);
    EXPECT_EQ(announced, 2);
}
