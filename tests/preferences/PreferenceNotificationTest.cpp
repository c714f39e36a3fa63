// SPDX-License-Identifier: MIT
// Which changes of preferences notify other processes, and how often.
#include "platform/session_bus/DistributedNotificationCenter.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/CallingLogSink.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/preferences/UnreachableSuite.h"

#include <functional>

using Controller = QBYUserDefaultsController;

class PreferenceNotificationTest : public QuillbayTest {
protected:
    void SetUp() override { SessionBus::start(); }

    // The change notification and a marker, as "change" and "write", in the order in which other processes
    // receive them. The marker is posted while the setter writes: the write fails, which is logged.
    static QStringList postsAroundAWriteBy(const std::function<void()> &setter)
    {
        const QString marker = QStringLiteral("QBYMarkerNotification");
        const QString last = QStringLiteral("QBYLastNotification");
        QStringList posts;
        bool isOver = false;
        const NotificationObserver changes(QBYPreferencesChangedNotification);
        const NotificationObserver markers(marker);
        const NotificationObserver ends(last);
        const auto note = [&posts](const char *post) {
            return [&posts, post] { posts << QString::fromLatin1(post); };
        };
        QObject::connect(&changes, &NotificationObserver::posted, &changes, note("change"));
        QObject::connect(&markers, &NotificationObserver::posted, &markers, note("write"));
        QObject::connect(&ends, &NotificationObserver::posted, &ends, [&isOver] { isOver = true; });
        {
            const UnreachableSuite obstacle;
            const CallingLogSink sink(
                [&marker](const LogRecord &) { DistributedNotificationCenter::post(marker); });
            setter();
        }
        DistributedNotificationCenter::post(last);
        EXPECT_TRUE(waitUntil([&isOver] { return isOver; }));
        Controller::setLeftMarginForPaperSizeLineMeasuring(0); // so that the next failure is logged again
        return posts;
    }

    // The number of change notifications that other processes receive. The bus keeps the order, so all of
    // them arrive before the marker that is posted last.
    static int postsDuring(const std::function<void()> &work)
    {
        const QString marker = QStringLiteral("QBYMarkerNotification");
        int posts = 0;
        bool isOver = false;
        const NotificationObserver changes(QBYPreferencesChangedNotification);
        const NotificationObserver markers(marker);
        QObject::connect(&changes, &NotificationObserver::posted, &changes, [&posts] { ++posts; });
        QObject::connect(&markers, &NotificationObserver::posted, &markers, [&isOver] { isOver = true; });
        work();
        DistributedNotificationCenter::post(marker);
        EXPECT_TRUE(waitUntil([&isOver] { return isOver; }));
        return posts;
    }
};

TEST_F(PreferenceNotificationTest, EverySetterOfAnAnnouncedPreferencePostsExactlyOnce)
{
    using Switch = void (*)(bool);
    for (const Switch set : {static_cast<Switch>(Controller::setShowCharacterCountPreference),
             static_cast<Switch>(Controller::setShowCharacterCountIncludingWhitespacePreference),
             static_cast<Switch>(Controller::setShowSentencesCountPreference),
             static_cast<Switch>(Controller::setShowLineCountPreference),
             static_cast<Switch>(Controller::setShowHardLineBreakCountPreference),
             static_cast<Switch>(Controller::setShowParagraphCountPreference),
             static_cast<Switch>(Controller::setShowHardIndentParagraphCountPreference),
             static_cast<Switch>(Controller::setSayWordCountOutLoudOnSaveInWatchFileMode)}) {
        EXPECT_EQ(postsDuring([set] { set(true); }), 1);
        EXPECT_EQ(postsDuring([set] { set(true); }), 1) << "the same value again";
        EXPECT_EQ(postsDuring([set] { set(false); }), 1);
    }
    EXPECT_EQ(postsDuring([] { Controller::setMinNumberOfSentencesForParagraphCount(2); }), 1);
    EXPECT_EQ(postsDuring([] { Controller::setCurrentPaperNamePreference(QStringLiteral("A4")); }), 1);
}

TEST_F(PreferenceNotificationTest, TheSentenceRuleAndTheMarginsPostNothing)
{
    EXPECT_EQ(postsDuring([] { Controller::setShouldEnforceTrailingPeriodForSentencesCount(true); }), 0);
    EXPECT_EQ(postsDuring([] { Controller::setShouldEnforceTrailingPeriodForSentencesCount(false); }), 0);
    EXPECT_EQ(postsDuring([] { Controller::setLeftMarginForPaperSizeLineMeasuring(1); }), 0);
    EXPECT_EQ(postsDuring([] { Controller::setRightMarginForPaperSizeLineMeasuring(1); }), 0);
}

TEST_F(PreferenceNotificationTest, TheFirstLaunchStepPostsNothing)
{
    EXPECT_EQ(postsDuring(Controller::configureUserDefaultsOnApplicationLaunch), 0);
    EXPECT_TRUE(Controller::isShowLineCountPreferenceOn());
    EXPECT_EQ(postsDuring(Controller::configureUserDefaultsOnApplicationLaunch), 0);
}

TEST_F(PreferenceNotificationTest, ReadingPostsNothingAndAnExplicitPostPostsOnce)
{
    EXPECT_EQ(postsDuring([] { Controller::paperNameForLineMeasuring(); }), 0);
    EXPECT_EQ(postsDuring(Controller::postPreferencesChangedNotification), 1);
}

TEST_F(PreferenceNotificationTest, WhenTheNotificationOfAnotherProcessArrivesItsValueCanBeRead)
{
    Controller::configureUserDefaultsOnApplicationLaunch();
    std::vector<bool> seen;
    const NotificationObserver observer(QBYPreferencesChangedNotification);
    QObject::connect(&observer, &NotificationObserver::posted, &observer,
        [&seen] { seen.push_back(Controller::isShowLineCountPreferenceOn()); });
    ChildProcess user(testProgram(QStringLiteral("preference_user")));
    user.start({});
    EXPECT_EQ(user.readLine(), "ready");
    user.writeLine("hide lines");
    EXPECT_TRUE(waitUntil([&seen] { return !seen.empty(); }));
    EXPECT_EQ(seen, std::vector<bool>{false});
    EXPECT_EQ(user.finish().exitStatus, 0);
}

TEST_F(PreferenceNotificationTest, EverySetterWritesBeforeItPosts)
{
    Controller::configureUserDefaultsOnApplicationLaunch();
    const std::vector<std::function<void()>> setters{
        [] { Controller::setShowCharacterCountPreference(false); },
        [] { Controller::setShowCharacterCountIncludingWhitespacePreference(false); },
        [] { Controller::setShowSentencesCountPreference(false); },
        [] { Controller::setShowLineCountPreference(false); },
        [] { Controller::setShowHardLineBreakCountPreference(false); },
        [] { Controller::setShowParagraphCountPreference(false); },
        [] { Controller::setShowHardIndentParagraphCountPreference(false); },
        [] { Controller::setSayWordCountOutLoudOnSaveInWatchFileMode(true); },
        [] { Controller::setMinNumberOfSentencesForParagraphCount(2); },
        [] { Controller::setCurrentPaperNamePreference(QStringLiteral("A4")); },
    };
    for (size_t i = 0; i < setters.size(); ++i)
        EXPECT_EQ(
            postsAroundAWriteBy(setters[i]), QStringList({QStringLiteral("write"), QStringLiteral("change")}))
            << "setter " << i;
}

TEST_F(PreferenceNotificationTest, AChangeThatIsNotAnnouncedIsStillReadByOtherProcesses)
{
    Controller::configureUserDefaultsOnApplicationLaunch();
    EXPECT_TRUE(Controller::shouldEnforceTrailingPeriodForSentencesCount());
    ChildProcess(testProgram(QStringLiteral("preference_user"))).run({}, "ignore-endings\n");
    EXPECT_FALSE(Controller::shouldEnforceTrailingPeriodForSentencesCount());
}

TEST_F(PreferenceNotificationTest, WithoutABusPreferencesAreStoredAndOneLineIsLogged)
{
    ChildProcess user(testProgram(QStringLiteral("preference_user")));
    user.withoutVariable("DBUS_SESSION_BUS_ADDRESS");
    const auto outcome = user.run({}, "launch-and-hide lines\nhide sentences\n");
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, QByteArray("ready\ndone\ndone\n"));
    EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
    EXPECT_FALSE(Controller::isShowLineCountPreferenceOn());
    EXPECT_FALSE(Controller::isShowSentencesCountPreferenceOn());
    EXPECT_TRUE(Controller::isShowParagraphCountPreferenceOn());
}
