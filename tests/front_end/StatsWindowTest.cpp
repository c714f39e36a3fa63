// SPDX-License-Identifier: MIT
// The statistics window without a screen: set-up, layout, closing. The counting service gives the answers
// that each test has planned.
#include "front_end/QBYServiceProviderShowStatsWindowController.h"

#include "tests/harness/QuillbayTest.h"
#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/platform/session_bus/ServiceStandIn.h"
#include "tests/platform/views/FakeDesktop.h"
#include "tests/presentation/CountingPanel.h"
#include "tests/presentation/StatsPanel.h"

using ::testing::ElementsAre;

namespace {

using Controller = QBYServiceProviderShowStatsWindowController;

class RecordingDelegate : public QBYServiceProviderShowStatsWindowControllerDelegate {
public:
    void serviceProviderShowStatsWindowControllerDidClose(Controller &controller) override
    {
        calls.emplace_back(controller.window()->isVisible() ? "visible" : "closed");
        if (letsGo)
            held.reset();
    }

    std::shared_ptr<Controller> held;
    bool letsGo = false;
    std::vector<std::string> calls;
};

class StatsWindow : public QuillbayTest {
protected:
    StatsWindow()
    {
        preferOnly(everyStatistic);
        controller->setDelegate(&delegate);
    }

    void load()
    {
        controller->loadWindow();
        for (const auto &label : panel().allTextfieldsForLayout())
            label->setFrameSize({80, 17});
    }
    void answer()
    {
        service.waitForRequests(1);
        service.release();
        EXPECT_TRUE(waitUntil([this] { return !controller->activityIndicator()->isAnimating(); }));
    }

    [[nodiscard]] WordCounterViewController &panel() const
    {
        return *controller->wordCounterViewController();
    }
    [[nodiscard]] QSizeF size() const { return controller->window()->frame().size(); }
    [[nodiscard]] const std::shared_ptr<Label> &label(size_t index) const
    {
        return panel().allTextfieldsForLayout().at(index);
    }

    ServiceStandIn service{WordCounterServiceProtocol::serviceName(), {"hold"}};
    FakeDesktop desktop;
    FakeClock clock;
    const AttributedString text{QStringLiteral("A text.")};
    std::shared_ptr<Controller> controller = std::make_shared<Controller>(text, desktop, clock);
    RecordingDelegate delegate;
};

} // namespace

TEST_F(StatsWindow, KeepsItsTextAndCountsItOnce)
{
    EXPECT_EQ(controller->attributedStringToCount(), text);
    load();
    answer();
    controller->showWindow(nullptr);
    EXPECT_EQ(service.requests().size(), 1U);
    EXPECT_EQ(panel().wordCountTextField()->stringValue(), QStringLiteral("•Words: 1"));
}

TEST_F(StatsWindow, IsAFloatingWindowThatIsMovedByItsBackgroundAndTakesTheFocus)
{
    load();
    const Window &window = *controller->window();
    EXPECT_EQ(window.level(), WindowLevel::Floating);
    EXPECT_TRUE(window.isMovableByBackground());
    EXPECT_EQ(window.styleMask(), 0U) << "no title bar";
    EXPECT_TRUE(window.canBecomeKeyWindow());
    EXPECT_EQ(controller->titleLabel()->stringValue(), QStringLiteral("Quillbay"));
    EXPECT_EQ(window.title(), QStringLiteral("Quillbay"));
    EXPECT_EQ(panel().wordCounter()->formattedStringStyle(), 1);
    EXPECT_EQ(panel().labelPositionPolicy(), WordCounterLabelPositionPolicyStacked);
    EXPECT_EQ(panel().layoutDelegate(), controller.get());
}

TEST_F(StatsWindow, ShowsNoNumbersWhileItCounts)
{
    load();
    EXPECT_TRUE(controller->activityIndicator()->isAnimating());
    EXPECT_EQ(panel().view()->alphaValue(), 0);
    int fade = 0;
    QObject::connect(
        panel().view().get(), &View::alphaValueDidChange, [&](int milliseconds) { fade = milliseconds; });
    answer();
    EXPECT_FALSE(controller->activityIndicator()->isAnimating());
    EXPECT_EQ(panel().view()->alphaValue(), 1);
    EXPECT_EQ(fade, 250);
}

TEST_F(StatsWindow, KeepsTurningWithoutAnAnswer)
{
    load();
    service.waitForRequests(1);
    EXPECT_TRUE(controller->activityIndicator()->isAnimating());
    controller->closeButtonAction(nullptr);
    EXPECT_THAT(delegate.calls, ElementsAre("closed"));
}

TEST_F(StatsWindow, IsAsHighAsThePanelAnd31Points)
{
    load();
    for (const double height : {17.0, 40.0, 20.5}) {
        for (const auto &one : panel().allTextfieldsForLayout())
            one->setFrameSize({80, height});
        panel().repositionLabels();
        EXPECT_EQ(size().height(), panel().view()->frame().height() + 31) << height;
    }
}

TEST_F(StatsWindow, OnlyGrowsInWidth)
{
    load();
    const double before = size().width();
    for (const auto &one : panel().allTextfieldsForLayout())
        one->setFrameSize({10, 17});
    panel().repositionLabels();
    EXPECT_EQ(size().width(), before);
}

TEST_F(StatsWindow, GrowsByTenBeyondALabelThatFillsIt)
{
    load();
    const double before = size().width();
    label(2)->setFrameSize({before - 0.5, 17});
    panel().repositionLabels();
    EXPECT_EQ(size().width(), before);
    label(2)->setFrameSize({before, 17});
    panel().repositionLabels();
    EXPECT_EQ(size().width(), before + 10);
}

TEST_F(StatsWindow, TakesItsWidthFromTheLastLabelThatFillsItNotTheWidest)
{
    load();
    panel().repositionLabels();
    ASSERT_EQ(size().width(), 240);
    label(1)->setFrameSize({440, 17});
    label(5)->setFrameSize({260, 17});
    panel().repositionLabels();
    EXPECT_EQ(size().width(), 270);
    EXPECT_EQ(panel().view()->frame().width(), 270) << "as wide as the window";
    EXPECT_EQ(controller->lineSeparator()->frame().width(), 270);
    EXPECT_EQ(label(5)->frame().x(), 5) << "centred in it";
}

TEST_F(StatsWindow, IgnoresTheWidthOfHiddenLabels)
{
    load();
    const double before = size().width();
    label(3)->setFrameSize({before + 100, 17});
    label(3)->setHidden(true);
    controller->wordCounterViewControllerDidRelayoutLabels();
    EXPECT_EQ(size().width(), before);
}

TEST_F(StatsWindow, KeepsItsBottomLeftCornerWhenItFitsItsLabels)
{
    load();
    controller->window()->setFrame({300, 200, 240, 249}, true, false);
    label(7)->setFrameSize({400, 60});
    panel().repositionLabels();
    EXPECT_EQ(controller->window()->frame().topLeft(), QPointF(300, 200));
    EXPECT_EQ(size().width(), 410);
}

TEST_F(StatsWindow, PlacesItsTitleRowToThePoint)
{
    load();
    controller->setActivityIndicator(controller->activityIndicator());
    controller->activityIndicator()->setFrameSize({16, 18});
    controller->closeButton()->setFrameSize({27, 24});
    controller->titleLabel()->setFrameSize({1, 21});
    controller->lineSeparator()->setFrameSize({1, 2});
    panel().setLayoutDelegate(nullptr); // so that the size stays as the test sets it
    panel().view()->setFrame({9, 9, 100, 170.5});
    controller->window()->setFrame({0, 0, 301, 215.5}, true, false);
    controller->windowContentViewFrameDidChange();

    EXPECT_EQ(panel().view()->frame(), QRectF(0, 0, 301, 170.5));
    EXPECT_EQ(controller->activityIndicator()->frame(), QRectF(5, 215.5 - 18 - 4, 16, 18));
    EXPECT_EQ(controller->closeButton()->frame(), QRectF(301 - 27, 170.5 + 2, 27, 24));
    EXPECT_EQ(controller->titleLabel()->frame(), QRectF(21, 215.5 - 21 - 3, 274 - 21, 21));
    EXPECT_EQ(controller->lineSeparator()->frame(), QRectF(0, 170.5 + 1, 301, 2));
}

TEST_F(StatsWindow, EachStepOfTheLayoutReadsThePresentFrames)
{
    load();
    panel().repositionLabels();
    // A listener of the panel's frame enlarges the window during the layout.
    QObject::connect(panel().view().get(), &View::frameDidChange, controller.get(), [this] {
        if (panel().view()->frame().topLeft() == QPointF(0, 0) && size().width() < 500)
            controller->window()->setFrame({0, 0, 500, 400}, true, false);
    });
    panel().view()->setFrameOrigin({9, 9});
    controller->windowContentViewFrameDidChange();
    ASSERT_EQ(size().width(), 500);
    EXPECT_EQ(controller->lineSeparator()->frame().width(), 500);
    EXPECT_EQ(controller->closeButton()->frame().x(), 500 - controller->closeButton()->frame().width());
    const double height = size().height();
    const QRectF title = controller->titleLabel()->frame();
    const QRectF indicator = controller->activityIndicator()->frame();
    EXPECT_EQ(indicator.y(), height - indicator.height() - 4);
    EXPECT_EQ(title.y(), height - title.height() - 3);
    EXPECT_EQ(title.x() + title.width(), controller->closeButton()->frame().x());
}

TEST_F(StatsWindow, CountsMissingControlsAsZero)
{
    load();
    controller->setActivityIndicator(nullptr);
    controller->setCloseButton(nullptr);
    panel().setLayoutDelegate(nullptr);
    controller->window()->setFrame({0, 0, 300, 200}, true, false);
    controller->windowContentViewFrameDidChange();
    const QRectF title = controller->titleLabel()->frame();
    EXPECT_EQ(title.x(), 0);
    EXPECT_EQ(title.width(), 0);
    EXPECT_EQ(title.y(), 200 - title.height() - 3);
}

TEST_F(StatsWindow, LaysOutItsContentWheneverItsSizeChanges)
{
    load();
    panel().setLayoutDelegate(nullptr);
    controller->window()->setFrame({0, 0, 400, 300}, true, false);
    EXPECT_EQ(controller->activityIndicator()->frame().y(),
        300 - controller->activityIndicator()->frame().height() - 4);
    EXPECT_EQ(controller->lineSeparator()->frame().width(), 400);
}

TEST_F(StatsWindow, OpensBesideThePointerInTheWorkArea)
{
    desktop.pointer = {600, 500};
    desktop.visibleFrame = {0, 40, 1280, 760};
    controller->showWindow(nullptr);
    EXPECT_TRUE(controller->window()->isVisible());
    const QRectF middle = controller->window()->frame();
    EXPECT_EQ(middle.center().x(), 600);
    EXPECT_LT(middle.y() + middle.height(), 500);
    desktop.pointer = {1279, 41};
    controller->showWindow(nullptr);
    const QRectF corner = controller->window()->frame();
    EXPECT_EQ(corner.x() + corner.width(), 1280);
    EXPECT_EQ(corner.y(), 40);
    EXPECT_EQ(desktop.numberOnScreen, 1);
}

TEST_F(StatsWindow, OpensInACornerOrWhereTheDesktopPlacesItIfThePointerIsUnknown)
{
    desktop.pointer.reset();
    desktop.visibleFrame = {0, 40, 1280, 760};
    controller->showWindow(nullptr);
    EXPECT_FALSE(controller->window()->isPlacedByDesktop());
    EXPECT_EQ(controller->window()->frame().right(), 1280);
    EXPECT_GT(controller->window()->frame().bottom(), 760) << "the upper edge";
    desktop.hasSeveralScreens = true;
    controller->showWindow(nullptr);
    EXPECT_TRUE(controller->window()->isPlacedByDesktop());
}

TEST_F(StatsWindow, ClosesBeforeItNotifiesTheDelegate)
{
    for (const auto &close :
        std::vector<std::function<void()>>{[&] { controller->closeButton()->performClick(); },
            [&] { controller->window()->performClose(); }}) {
        controller->showWindow(nullptr);
        delegate.calls.clear();
        close();
        EXPECT_THAT(delegate.calls, ElementsAre("closed"));
    }
}

TEST_F(StatsWindow, StopsItsCountWhenItIsClosed)
{
    load();
    service.waitForRequests(1);
    const QString client = service.requests().front().client;
    EXPECT_TRUE(service.isOnTheBus(client));
    controller->closeButtonAction(nullptr);
    EXPECT_FALSE(panel().isAsyncCountOperationInProgress());
    EXPECT_TRUE(waitUntil([&] { return !service.isOnTheBus(client); }));
}

TEST_F(StatsWindow, ClosesWithoutADelegate)
{
    controller->setDelegate(nullptr);
    controller->showWindow(nullptr);
    controller->closeButtonAction(nullptr);
    EXPECT_FALSE(controller->window()->isVisible());
}

TEST_F(StatsWindow, MayBeDestroyedInItsOwnClick)
{
    controller->showWindow(nullptr);
    const std::weak_ptr<Controller> life = controller;
    delegate.letsGo = true;
    delegate.held = std::move(controller);
    const std::shared_ptr<Button> button = delegate.held->closeButton();
    service.waitForRequests(1); // also during a count
    button->performClick();
    EXPECT_TRUE(life.expired());
    EXPECT_EQ(desktop.numberOnScreen, 0);
    service.release();
}

TEST_F(StatsWindow, CopiesTheStatisticsAsTextAndAsAPage)
{
    load();
    EXPECT_TRUE(controller->window()->contentToCopy().empty()) << "not counted yet";
    answer();
    const MimeContent content = controller->window()->contentToCopy();
    EXPECT_EQ(QString::fromUtf8(content.at(QStringLiteral("text/html"))),
        panel().htmlRepresentationWithTitle(std::nullopt, true));
    EXPECT_THAT(QString::fromUtf8(content.at(QStringLiteral("text/plain"))).toStdString(),
        testing::HasSubstr("-Chars (+Whitespace): 3"));
}

TEST_F(StatsWindow, ScreenReadersReadTheCountsOnceTheyAreThere)
{
    load();
    QStringList announced;
    QObject::connect(controller->window().get(), &Window::announced, controller->window().get(),
        [&] { announced.append(controller->window()->accessibleDescription()); });
    EXPECT_EQ(controller->window()->accessibleDescription(), QString());
    answer();
    ASSERT_EQ(announced.size(), 1);
    EXPECT_TRUE(announced.constFirst().startsWith(QStringLiteral("Words: 1, Characters: ")));
}

TEST_F(StatsWindow, ASpinnerThatTurnsForLongSaysWhatItWaitsFor)
{
    load();
    service.waitForRequests(1);
    clock.advance(WaitNotice::delay);
    EXPECT_EQ(controller->activityIndicator()->toolTip(),
        QStringLiteral("Still waiting for the counting service."));
    answer();
    EXPECT_EQ(controller->activityIndicator()->toolTip(), QString());
}
