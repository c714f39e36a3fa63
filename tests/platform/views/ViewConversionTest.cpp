// SPDX-License-Identifier: MIT
#include "platform/views/ScrollView.h"

#include <gtest/gtest.h>

namespace {

class FlippedTestView : public View {
public:
    using View::View;
    [[nodiscard]] bool isFlipped() const override { return true; }
};

/// The last view on a chain of views, each in the one before.
template <typename... Views>
std::shared_ptr<View> nestViews(const std::shared_ptr<View> &outer, const Views &...inner)
{
    std::shared_ptr<View> last = outer;
    ((last->addSubview(inner), last = inner), ...);
    return last;
}

} // namespace

TEST(ViewConversion, AddsTheOriginsOfTheFrames)
{
    const auto root = std::make_shared<View>(QRectF(0, 0, 200, 100));
    const auto leaf = nestViews(root, std::make_shared<View>(QRectF(10, 35, 100, 60)),
        std::make_shared<View>(QRectF(3, 5.5, 50, 17)));
    EXPECT_EQ(leaf->convertToWindow(leaf->bounds()), QRectF(13, 40.5, 50, 17));
    EXPECT_EQ(leaf->convertToWindow({1, 2, 3, 4}), QRectF(14, 42.5, 3, 4));
}

TEST(ViewConversion, FlipsAtEveryChangeOfDirection)
{
    const auto upright = std::make_shared<View>(QRectF(0, 0, 200, 100));
    const auto inFlipped = nestViews(upright, std::make_shared<FlippedTestView>(QRectF(10, 20, 100, 60)),
        std::make_shared<View>(QRectF(3, 5, 50, 17)));
    // 5 below the top of the flipped view, which is at 80.
    EXPECT_EQ(inFlipped->convertToWindow(inFlipped->bounds()), QRectF(13, 58, 50, 17));
    EXPECT_EQ(inFlipped->convertToWindow({0, 0, 50, 1}), QRectF(13, 58, 50, 1));

    const auto flippedRoot = std::make_shared<FlippedTestView>(QRectF(0, 0, 200, 100));
    const auto deep = nestViews(flippedRoot, std::make_shared<FlippedTestView>(QRectF(10, 20, 100, 60)),
        std::make_shared<FlippedTestView>(QRectF(3, 5, 50, 17)));
    // 25 below the top of the window.
    EXPECT_EQ(deep->convertToWindow(deep->bounds()), QRectF(13, 58, 50, 17));
    EXPECT_EQ(deep->convertToWindow({0, 0, 50, 1}), QRectF(13, 74, 50, 1));
}

TEST(ViewConversion, FollowsScrollingAndMagnification)
{
    const auto scrollView = std::make_shared<ScrollView>(QRectF(50, 60, 200, 300));
    const auto document = std::make_shared<View>(QRectF(0, 0, 1000, 1000));
    scrollView->setDocumentView(document);
    scrollView->contentView().scrollToPoint({100, 200});
    EXPECT_EQ(document->convertToWindow({100, 200, 10, 10}), QRectF(50, 60, 10, 10));
    scrollView->contentView().setMagnification(2);
    EXPECT_EQ(document->convertToWindow({110, 200, 10, 10}), QRectF(70, 60, 20, 20));
}

TEST(ViewConversion, IsFiniteInAViewWithoutArea)
{
    const View empty(QRectF(5, 6, 0, 0));
    EXPECT_EQ(empty.convertToWindow({1, 1, 2, 2}), QRectF(6, 7, 2, 2));
}
