// SPDX-License-Identifier: MIT
#include "platform/views/View.h"
#include "platform/views/Window.h"

#include <QPointer>

#include <gmock/gmock.h>

#include <limits>

using ::testing::ElementsAre;

namespace {

std::shared_ptr<View> aView()
{
    return std::make_shared<View>();
}

int countOf(const View &view, void (View::*signal)(), const std::function<void()> &action)
{
    int count = 0;
    const auto connection = QObject::connect(&view, signal, &view, [&count] { ++count; });
    action();
    QObject::disconnect(connection);
    return count;
}

class WheelView : public View {
public:
    void scrollWheel(const ScrollWheelEvent &event) override { m_received.push_back(event.deltaY); }
    std::vector<double> m_received;
};

} // namespace

TEST(View, BoundsStartAtZeroAndAreAsLargeAsTheFrame)
{
    const View view({10, 20, 30, 40});
    EXPECT_EQ(view.bounds(), QRectF(0, 0, 30, 40));
    EXPECT_FALSE(view.isFlipped());
}

TEST(View, AChangeOfOriginKeepsTheSizeAndAChangeOfSizeTheOrigin)
{
    View view({10, 20, 30, 40});
    view.setFrameOrigin({1, 2});
    EXPECT_EQ(view.frame(), QRectF(1, 2, 30, 40));
    view.setFrameSize({3, 4});
    EXPECT_EQ(view.frame(), QRectF(1, 2, 3, 4));
}

TEST(View, OnlyAFrameThatDiffersIsAnnounced)
{
    View view({10, 20, 30, 40});
    EXPECT_EQ(countOf(view, &View::frameDidChange, [&] { view.setFrame({10, 20, 30, 40}); }), 0);
    EXPECT_EQ(countOf(view, &View::frameDidChange, [&] { view.setFrame({10, 20, 30, 41}); }), 1);
}

TEST(View, AFrameThatDiffersInTheLastDigitOnlyIsAnotherFrame)
{
    View view({0, 0, 30, 40});
    const double wider = std::nextafter(30.0, 31.0);
    EXPECT_EQ(countOf(view, &View::frameDidChange, [&] { view.setFrameSize({wider, 40}); }), 1);
    EXPECT_TRUE(view.frame().width() == wider);
}

TEST(View, TheLastAddedSubviewIsTheTopmost)
{
    View parent;
    const auto lower = aView();
    const auto upper = aView();
    parent.addSubview(lower);
    parent.addSubview(upper);
    EXPECT_THAT(parent.subviews(), ElementsAre(lower, upper));
    EXPECT_EQ(lower->superview(), &parent);
}

TEST(View, ASubviewAddedAgainMovesToTheTopAndIsAnnouncedOnce)
{
    View parent;
    const auto one = aView();
    const auto two = aView();
    parent.addSubview(one);
    parent.addSubview(two);
    EXPECT_EQ(countOf(parent, &View::subviewsDidChange, [&] { parent.addSubview(parent.subviews()[0]); }), 1);
    EXPECT_THAT(parent.subviews(), ElementsAre(two, one));
    EXPECT_EQ(countOf(parent, &View::subviewsDidChange, [&] { parent.addSubview(one); }), 0);
}

TEST(View, AViewAddedElsewhereLeavesItsSuperview)
{
    View former;
    View present;
    former.addSubview(aView());
    int announced = 0;
    QObject::connect(&former, &View::subviewsDidChange, &former, [&announced] { ++announced; });
    present.addSubview(former.subviews()[0]);
    EXPECT_TRUE(former.subviews().empty());
    EXPECT_EQ(announced, 1);
    ASSERT_EQ(present.subviews().size(), 1U);
    EXPECT_EQ(present.subviews()[0]->superview(), &present);
}

TEST(View, ATreeNeverContainsItself)
{
    const auto root = aView();
    const auto leaf = aView();
    root->addSubview(leaf);
    leaf->addSubview(root);
    leaf->addSubview(leaf);
    leaf->addSubview(nullptr);
    EXPECT_TRUE(leaf->subviews().empty());
    EXPECT_EQ(leaf->superview(), root.get());
    EXPECT_EQ(root->superview(), nullptr);
}

TEST(View, ASuperviewKeepsItsSubviewsAliveAndARemovedViewDies)
{
    View parent;
    parent.addSubview(aView());
    const QPointer<View> child = parent.subviews()[0].get();
    ASSERT_TRUE(child);
    child->removeFromSuperview();
    EXPECT_FALSE(child);
    EXPECT_TRUE(parent.subviews().empty());
}

TEST(View, ASharedSubviewOutlivesItsSuperviewAndForgetsIt)
{
    auto parent = aView();
    const auto child = aView();
    parent->addSubview(child);
    parent.reset();
    EXPECT_EQ(child->superview(), nullptr);
    child->removeFromSuperview(); // has no superview
}

TEST(View, KnowsTheWindowThatHoldsItAtAnyDepth)
{
    const auto root = aView();
    const auto leaf = aView();
    root->addSubview(leaf);
    EXPECT_EQ(leaf->window(), nullptr);
    {
        Window window;
        window.setContentView(root);
        EXPECT_EQ(leaf->window(), &window);
    }
    EXPECT_EQ(leaf->window(), nullptr);
}

TEST(View, EveryMarkForDisplayIsAnnounced)
{
    View view;
    EXPECT_EQ(countOf(view, &View::displayNeeded,
                  [&] {
                      view.setNeedsDisplay();
                      view.setNeedsDisplay();
                  }),
        2);
}

TEST(View, AWheelEventGoesUpToTheFirstViewThatHandlesIt)
{
    const auto root = std::make_shared<WheelView>();
    const auto middle = aView();
    const auto leaf = aView();
    root->addSubview(middle);
    middle->addSubview(leaf);
    leaf->scrollWheel({0, 7});
    EXPECT_THAT(root->m_received, ElementsAre(7));
    View().scrollWheel({0, 7}); // and ends at the root
}

TEST(View, IsOpaqueUntilItFades)
{
    View view;
    std::vector<std::pair<double, int>> fades;
    QObject::connect(&view, &View::alphaValueDidChange, &view,
        [&](int milliseconds) { fades.emplace_back(view.alphaValue(), milliseconds); });
    EXPECT_EQ(view.alphaValue(), 1);
    view.setAlphaValue(1);
    view.fadeTo(0.25, 300);
    view.fadeTo(0.25, 100);
    view.setAlphaValue(-3);
    view.setAlphaValue(7);
    view.setAlphaValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_THAT(fades, ElementsAre(std::pair(0.25, 300), std::pair(0.0, 0), std::pair(1.0, 0)));
}

TEST(View, AnnouncesItsDescriptionOnce)
{
    View view;
    const int announced = countOf(view, &View::descriptionDidChange, [&] {
        for (int i = 0; i < 2; ++i) {
            view.setAccessibleName(QStringLiteral("Words"));
            view.setToolTip(QStringLiteral("The words of the text"));
        }
    });
    EXPECT_EQ(announced, 2);
    EXPECT_EQ(view.accessibleName(), QStringLiteral("Words"));
    EXPECT_EQ(view.toolTip(), QStringLiteral("The words of the text"));
}
