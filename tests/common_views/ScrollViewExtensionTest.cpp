// SPDX-License-Identifier: MIT
#include "common_views/FlippedView.h"
#include "common_views/ViewExtension.h"
#include "platform/views/ScrollView.h"

#include <gtest/gtest.h>

class ScrollToTopTest : public ::testing::Test {
protected:
    QPointF topOf(const std::shared_ptr<View> &document)
    {
        m_scrollView.setDocumentView(document);
        m_scrollView.contentView().scrollToPoint({40, 50});
        QBYExtension::scrollToTop(m_scrollView);
        return m_scrollView.contentView().bounds().topLeft();
    }

    ScrollView m_scrollView{{0, 0, 200, 300}};
};

TEST_F(ScrollToTopTest, AFlippedDocumentScrollsToZero)
{
    EXPECT_EQ(topOf(std::make_shared<FlippedView>(QRectF(0, 0, 200, 1000))), QPointF(0, 0));
}

TEST_F(ScrollToTopTest, AnyOtherDocumentScrollsToItsHeightMinusTheContentHeight)
{
    EXPECT_EQ(topOf(std::make_shared<View>(QRectF(0, 0, 200, 1000))), QPointF(0, 700));
}

TEST_F(ScrollToTopTest, ALowDocumentScrollsBelowZero)
{
    EXPECT_EQ(topOf(std::make_shared<View>(QRectF(0, 0, 200, 100))), QPointF(0, -200));
}

TEST_F(ScrollToTopTest, TheContentHeightIsInScreenPointsAtEveryMagnification)
{
    m_scrollView.magnifyToFitRect({0, 0, 100, 100});
    ASSERT_EQ(m_scrollView.magnification(), 2);
    EXPECT_EQ(topOf(std::make_shared<View>(QRectF(0, 0, 200, 1000))), QPointF(0, 700));
}

TEST_F(ScrollToTopTest, TheScrollerGoesToTheTop)
{
    m_scrollView.setHasVerticalScroller(true);
    m_scrollView.setVerticalScrollerValue(0.5);
    topOf(std::make_shared<View>(QRectF(0, 0, 200, 1000)));
    EXPECT_EQ(m_scrollView.verticalScrollerValue(), 0.0);
}

TEST_F(ScrollToTopTest, WithoutADocumentNothingScrolls)
{
    EXPECT_EQ(topOf(nullptr), QPointF(40, 50));
}
