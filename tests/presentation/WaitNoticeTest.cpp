// SPDX-License-Identifier: MIT
#include "presentation/WaitNotice.h"

#include "platform/views/Window.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/file_coordination/FakeClock.h"

namespace {

const QString forService = QStringLiteral("Still waiting for the counting service.");

class WaitNoticeTest : public QuillbayTest {
protected:
    WaitNoticeTest()
    {
        QObject::connect(&m_window, &Window::announced, &m_window,
            [this] { m_announced.append(m_window.accessibleDescription()); });
    }

    FakeClock m_clock;
    Window m_window;
    std::shared_ptr<ProgressIndicator> m_spinner = std::make_shared<ProgressIndicator>();
    WaitNotice::Subject m_subject = WaitNotice::Subject::CountingService;
    WaitNotice m_notice{m_spinner, m_window, m_clock, [this] { return m_subject; }};
    QStringList m_announced;
    RecordingLogSink m_log;
};

} // namespace

TEST_F(WaitNoticeTest, SaysAfterTenSecondsWhatTheWindowWaitsFor)
{
    m_spinner->startAnimation();
    m_clock.advance(WaitNotice::delay - std::chrono::milliseconds(1));
    EXPECT_EQ(m_spinner->toolTip(), QString());
    EXPECT_EQ(m_log.messages(), QStringList());
    m_clock.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(m_spinner->toolTip(), forService);
    EXPECT_EQ(m_announced, QStringList{forService});
    ASSERT_EQ(m_log.messages(LogLevel::Error).size(), 1);
    EXPECT_TRUE(m_log.messages().constFirst().contains(QStringLiteral("quillbay count --service")));
    m_clock.advance(WaitNotice::delay * 3);
    EXPECT_EQ(m_announced.size(), 1) << "once for each wait";
}

TEST_F(WaitNoticeTest, ATextThatIsStillBeingReadIsNoError)
{
    m_subject = WaitNotice::Subject::Text;
    m_spinner->startAnimation();
    m_clock.advance(WaitNotice::delay);
    EXPECT_EQ(m_spinner->toolTip(), QStringLiteral("Still reading the text."));
    EXPECT_EQ(m_log.messages(LogLevel::Error), QStringList());
    EXPECT_EQ(m_log.messages().size(), 1);
}

TEST_F(WaitNoticeTest, DisappearsWithTheSpinner)
{
    m_window.setSummaryProvider([] { return QStringLiteral("Words: 3"); });
    m_spinner->startAnimation();
    m_clock.advance(WaitNotice::delay);
    EXPECT_EQ(m_window.accessibleDescription(), forService);
    m_spinner->stopAnimation();
    EXPECT_EQ(m_spinner->toolTip(), QString());
    EXPECT_EQ(m_window.accessibleDescription(), QStringLiteral("Words: 3"));
}

TEST_F(WaitNoticeTest, EachWaitHasItsOwnTenSeconds)
{
    for (int i = 0; i < 3; ++i) {
        m_spinner->startAnimation();
        m_clock.advance(WaitNotice::delay / 2);
        m_spinner->stopAnimation();
    }
    EXPECT_EQ(m_announced, QStringList());
    EXPECT_EQ(m_clock.runningTimers(), 0);
}
