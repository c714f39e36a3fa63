// SPDX-License-Identifier: MIT
#include "front_end/QBYServiceProviderAppDelegate.h"

#include "tests/documents/loading/ReaderPrograms.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/session_bus/ServiceStandIn.h"
#include "tests/platform/views/FakeDesktop.h"
#include "tests/presentation/StatsPanel.h"

#include <csignal>

using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

const QString nothingReported = QStringLiteral("as before");

class AppDelegate : public QuillbayTest {
protected:
    AppDelegate() { preferOnly(everyStatistic); }

    /// The error that the service reports.
    QString count(const Pasteboard &pasteboard)
    {
        QString error = nothingReported;
        delegate.wordCountSelectedTextService(pasteboard, QString(), &error);
        return error;
    }
    /// A page that takes seconds to read.
    static QByteArray largePage()
    {
        return "<!DOCTYPE html><p>One paragraph</p>"
            + QByteArray("<p class='a'>of <b>very</b> many.</p>").repeated(50'000);
    }
    static Pasteboard page(const QByteArray &html)
    {
        return Pasteboard({{QStringLiteral("text/html;charset=utf-8"), html}});
    }

    QString count(const char *text) { return count(Pasteboard({{QStringLiteral("text/plain"), text}})); }

    ServiceStandIn service{WordCounterServiceProtocol::serviceName(), {"answer 1 2 3 4 5 6 7 8"}};
    FakeDesktop desktop;
    ApplicationActivity activity{true};
    std::vector<ServicesProvider *> registered;
    QBYServiceProviderAppDelegate delegate{
        {desktop, activity}, [this](ServicesProvider &provider) { registered.push_back(&provider); }};
};

} // namespace

TEST_F(AppDelegate, OffersTheServicesWhenLaunchingHasFinished)
{
    EXPECT_THAT(registered, IsEmpty());
    delegate.applicationDidFinishLaunching();
    EXPECT_THAT(registered, testing::ElementsAre(&delegate));
}

TEST_F(AppDelegate, OpensAWindowForTheSelectedText)
{
    EXPECT_EQ(count("A text."), nothingReported);
    ASSERT_THAT(delegate.statWindowControllerForSelectedText(), SizeIs(1));
    const auto &controller = delegate.statWindowControllerForSelectedText().front();
    EXPECT_EQ(controller->attributedStringToCount().string(), QStringLiteral("A text."));
    EXPECT_EQ(controller->delegate(), &delegate);
    EXPECT_TRUE(controller->window()->isVisible());
}

TEST_F(AppDelegate, AWindowHasTheNameOfTheFileThatItsTextComesFrom)
{
    count(Pasteboard({{QStringLiteral("text/plain"), "A text."},
        {QStringLiteral("text/uri-list"), "file:///home/writer/My%20novel.odt\r\n"}}));
    const auto &controller = delegate.statWindowControllerForSelectedText().front();
    EXPECT_EQ(controller->window()->title(), QStringLiteral("My novel.odt"));
    EXPECT_EQ(controller->titleLabel()->stringValue(), QStringLiteral("Quillbay"));
    count("A text from no file.");
    EXPECT_EQ(
        delegate.statWindowControllerForSelectedText().back()->window()->title(), QStringLiteral("Quillbay"));
}

TEST_F(AppDelegate, OpensAWindowForAnEmptyText)
{
    EXPECT_EQ(count(""), nothingReported);
    EXPECT_THAT(delegate.statWindowControllerForSelectedText(), SizeIs(1));
}

TEST_F(AppDelegate, ReportsAPasteboardWithoutText)
{
    EXPECT_EQ(count(Pasteboard()), QStringLiteral("Quillbay failed to read retrieve text."));
    EXPECT_EQ(count(Pasteboard({{QStringLiteral("image/png"), "\x89PNG"}})),
        QStringLiteral("Quillbay failed to read retrieve text."));
    EXPECT_THAT(delegate.statWindowControllerForSelectedText(), IsEmpty());
    EXPECT_EQ(desktop.numberOnScreen, 0);
}

TEST_F(AppDelegate, OpensAWindowForATextThatIsStillBeingRead)
{
    EXPECT_EQ(count(page(largePage())), nothingReported);
    ASSERT_THAT(delegate.statWindowControllerForSelectedText(), SizeIs(1));
    const auto controller = delegate.statWindowControllerForSelectedText().front();
    EXPECT_TRUE(controller->attributedStringToCount().isEmpty());
    EXPECT_TRUE(controller->window()->isVisible());
    EXPECT_TRUE(controller->activityIndicator()->isAnimating());
    EXPECT_EQ(controller->wordCounterViewController()->view()->alphaValue(), 0);
    EXPECT_TRUE(waitUntil([&] { return !controller->activityIndicator()->isAnimating(); }));
    EXPECT_TRUE(controller->attributedStringToCount().string().startsWith(QStringLiteral("One paragraph")));
    EXPECT_THAT(service.requests(), SizeIs(1));
}

TEST_F(AppDelegate, OpensOtherWindowsWhileATextIsBeingRead)
{
    count(page(largePage()));
    count("A text.");
    const auto controllers = delegate.statWindowControllerForSelectedText();
    ASSERT_THAT(controllers, SizeIs(2));
    EXPECT_TRUE(waitUntil([&] { return !controllers[1]->activityIndicator()->isAnimating(); }));
    EXPECT_TRUE(controllers[0]->attributedStringToCount().isEmpty());
}

TEST_F(AppDelegate, EndsTheReadingOfAWindowThatIsClosed)
{
    count(page(slowPage()));
    const std::weak_ptr<QBYServiceProviderShowStatsWindowController> life =
        delegate.statWindowControllerForSelectedText().front();
    EXPECT_TRUE(delegate.isInUse());
    const pid_t reader = readerAtWork();
    ASSERT_NE(reader, 0);
    ASSERT_EQ(::kill(reader, SIGSTOP), 0); // it cannot exit by itself
    life.lock()->closeButtonAction(nullptr);
    EXPECT_TRUE(life.expired());
    EXPECT_FALSE(delegate.isInUse());
    EXPECT_TRUE(waitUntilEnded(reader));
    EXPECT_THAT(desktop.notes, IsEmpty());
}

TEST_F(AppDelegate, ReportsATextThatTurnsOutNotToBeReadableAndClosesItsWindow)
{
    int endings = 0;
    delegate.setFinishedHandler([&] { ++endings; });
    EXPECT_EQ(count(page(largePage() + QByteArray("<div>").repeated(100'000))), nothingReported);
    EXPECT_THAT(delegate.statWindowControllerForSelectedText(), SizeIs(1));
    EXPECT_TRUE(waitUntil([&] { return endings > 0; }));
    EXPECT_THAT(delegate.statWindowControllerForSelectedText(), IsEmpty());
    EXPECT_THAT(
        desktop.notes, testing::ElementsAre(QStringLiteral("error: Quillbay failed to read retrieve text.")));
    EXPECT_THAT(service.requests(), IsEmpty());
}

TEST_F(AppDelegate, DropsTheErrorMessageIfNobodyTakesIt)
{
    delegate.wordCountSelectedTextService(Pasteboard(), QString(), nullptr);
    EXPECT_FALSE(delegate.isInUse());
}

TEST_F(AppDelegate, KeepsTheWindowsInTheOrderOfTheRequestsUntilEachIsClosed)
{
    count("one");
    count("two");
    count("two");
    const auto controllers = delegate.statWindowControllerForSelectedText();
    ASSERT_THAT(controllers, SizeIs(3));
    EXPECT_EQ(controllers[0]->attributedStringToCount().string(), QStringLiteral("one"));
    int endings = 0;
    delegate.setFinishedHandler([&] { ++endings; });
    controllers[1]->closeButtonAction(nullptr);
    EXPECT_THAT(
        delegate.statWindowControllerForSelectedText(), testing::ElementsAre(controllers[0], controllers[2]));
    EXPECT_EQ(endings, 1);
    EXPECT_TRUE(controllers[0]->window()->isVisible());
    EXPECT_TRUE(delegate.isInUse());
    controllers[0]->closeButtonAction(nullptr);
    controllers[2]->closeButtonAction(nullptr);
    EXPECT_FALSE(delegate.isInUse());
}

TEST_F(AppDelegate, DropsAWindowWhenItIsClosed)
{
    count("text");
    const std::weak_ptr<QBYServiceProviderShowStatsWindowController> life =
        delegate.statWindowControllerForSelectedText().front();
    life.lock()->window()->performClose();
    EXPECT_TRUE(life.expired());
}

TEST_F(AppDelegate, ReplacesRegistriesAndDropsTheirOldContents)
{
    count("one");
    count("two");
    const auto two = delegate.statWindowControllerForSelectedText().back();
    const std::weak_ptr<QBYServiceProviderShowStatsWindowController> one =
        delegate.statWindowControllerForSelectedText().front();
    delegate.setStatWindowControllerForSelectedText({two});
    EXPECT_THAT(delegate.statWindowControllerForSelectedText(), testing::ElementsAre(two));
    EXPECT_TRUE(one.expired());
    two->closeButtonAction(nullptr);
    EXPECT_THAT(delegate.statWindowControllerForSelectedText(), IsEmpty());

    const auto watcher = WatchTextFileMenuBarController::initWithoutMenuItem({desktop, activity});
    delegate.setWatchTextFileControllers({watcher});
    EXPECT_THAT(delegate.watchTextFileControllers(), testing::ElementsAre(watcher));
    EXPECT_TRUE(delegate.isInUse());
    delegate.watchTextFileMenuBarControllerDidFinish(*watcher);
    EXPECT_FALSE(delegate.isInUse());
}

TEST_F(AppDelegate, TerminatesTheApplicationWithItsLastWindow)
{
    EXPECT_TRUE(QBYServiceProviderAppDelegate::applicationShouldTerminateAfterLastWindowClosed());
}
