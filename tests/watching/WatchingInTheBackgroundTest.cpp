// SPDX-License-Identifier: MIT
// The model while real windows take the focus from each other.
#include "platform/views/widgets/ApplicationActivitySource.h"
#include "tests/platform/views/widgets/OtherProgram.h"
#include "tests/platform/views/widgets/ShownWindow.h"
#include "tests/watching/WatchedFileTest.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

class WatchingInTheBackgroundTest : public WatchedFileTest {
protected:
    WatchingInTheBackgroundTest()
    {
        m_shown.show();
        activate();
    }

    void activate() const
    {
        TestDisplay::xdotool({QStringLiteral("windowactivate"), m_shown.identifier()});
        EXPECT_TRUE(waitUntil([&] { return m_shown.widget().isActiveWindow(); }));
    }

    const OtherProgram m_other;
    const ShownWindow m_shown{{100, 200, 300, 150}, 0, WindowLevel::Normal};
};

TEST_F(WatchingInTheBackgroundTest, PollsWhileAnotherProgramHasTheFocus)
{
    const ApplicationActivitySource source(m_activity);
    const auto model = watch(m_path);
    pass(10s);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());

    m_other.activate();
    ASSERT_TRUE(waitUntil([&] { return m_clock.runningTimers() == 1; }));
    EXPECT_THAT(takeLog(), ElementsAre(m_backgroundMessage));
    pass(2s);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text before")));

    activate();
    ASSERT_TRUE(waitUntil([&] { return m_clock.runningTimers() == 0; }));
    EXPECT_THAT(takeLog(), ElementsAre(m_activeMessage));
    pass(10s);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
}
