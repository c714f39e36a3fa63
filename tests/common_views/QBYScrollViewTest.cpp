// SPDX-License-Identifier: MIT
#include "common_views/QBYScrollView.h"
#include "common_views/FlippedView.h"

#include <gtest/gtest.h>

/// A scroll view of 100 by 100 at the top of another of the same size; both have documents 1000 high.
class QBYScrollViewTest : public ::testing::Test {
protected:
    QBYScrollViewTest()
    {
        const auto page = std::make_shared<FlippedView>(QRectF(0, 0, 100, 1000));
        page->addSubview(m_inner);
        m_outer.setDocumentView(page);
        m_inner->setDocumentView(std::make_shared<FlippedView>(QRectF(0, 0, 100, 1000)));
        m_inner->setHasVerticalScroller(true);
    }
    [[nodiscard]] static double scrollPosition(const ScrollView &view)
    {
        return view.contentView().bounds().y();
    }

    ScrollView m_outer{{0, 0, 100, 100}};
    const std::shared_ptr<QBYScrollView> m_inner = std::make_shared<QBYScrollView>(QRectF(0, 0, 100, 100));
};

TEST_F(QBYScrollViewTest, ScrollsByDefault)
{
    EXPECT_FALSE(m_inner->disableScrolling());
    m_inner->documentView()->scrollWheel({0, -90});
    EXPECT_EQ(scrollPosition(*m_inner), 90);
    EXPECT_EQ(m_inner->verticalScrollerValue(), 0.1);
}

TEST_F(QBYScrollViewTest, PassesUnusedEventsOn)
{
    m_inner->setDocumentView(nullptr);
    m_inner->scrollWheel({0, -90});
    EXPECT_EQ(scrollPosition(m_outer), 90);
}

TEST_F(QBYScrollViewTest, WithScrollingDisabledEnclosingViewsDoNotScrollEither)
{
    m_inner->setDisableScrolling(true);
    EXPECT_TRUE(m_inner->disableScrolling());
    m_inner->documentView()->scrollWheel({0, -90});
    m_inner->scrollWheel({0, -90});
    m_inner->setDocumentView(nullptr);
    m_inner->scrollWheel({0, -90});
    EXPECT_EQ(scrollPosition(*m_inner), 0);
    EXPECT_EQ(m_inner->verticalScrollerValue(), 0.0);
    EXPECT_EQ(scrollPosition(m_outer), 0);
}

TEST_F(QBYScrollViewTest, ScrollsAgainWhenEnabledAgain)
{
    m_inner->setDisableScrolling(true);
    m_inner->setDisableScrolling(false);
    m_inner->scrollWheel({0, -90});
    EXPECT_EQ(scrollPosition(*m_inner), 90);
}
