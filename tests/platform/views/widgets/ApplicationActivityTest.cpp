// SPDX-License-Identifier: MIT
#include "platform/views/widgets/ApplicationActivitySource.h"

#include "tests/platform/views/widgets/OtherProgram.h"
#include "tests/platform/views/widgets/ShownWindow.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ApplicationActivityTest : public QuillbayTest {
protected:
    ApplicationActivityTest()
    {
        QObject::connect(&m_activity, &ApplicationActivity::willResignActive, &m_activity, [this] {
            m_notices << (m_activity.isActive() ? QStringLiteral("will resign")
                                                : QStringLiteral("has resigned"));
        });
        QObject::connect(&m_activity, &ApplicationActivity::didBecomeActive, &m_activity,
            [this] { m_notices << QStringLiteral("became active"); });
    }

    /// Makes the window manager give the window the focus.
    static void activate(const ShownWindow &shown)
    {
        TestDisplay::xdotool({QStringLiteral("windowactivate"), shown.identifier()});
        EXPECT_TRUE(waitUntil([&] { return shown.widget().isActiveWindow(); }));
    }

    ApplicationActivity m_activity{false};
    QStringList m_notices;
};

TEST_F(ApplicationActivityTest, ProgramIsInactiveWhenAnotherProgramTakesTheFocus)
{
    const ShownWindow shown({100, 200, 300, 150}, 0, WindowLevel::Normal);
    shown.show();
    const OtherProgram other;
    activate(shown);
    const ApplicationActivitySource source(m_activity);
    EXPECT_TRUE(m_activity.isActive());
    EXPECT_THAT(m_notices, ElementsAre(QStringLiteral("became active")));
    m_notices.clear();

    other.activate();
    EXPECT_TRUE(waitUntil([&] { return !m_activity.isActive(); }));
    EXPECT_THAT(m_notices, ElementsAre(QStringLiteral("will resign")));

    activate(shown);
    EXPECT_TRUE(waitUntil([&] { return m_activity.isActive(); }));
    EXPECT_THAT(m_notices, ElementsAre(QStringLiteral("will resign"), QStringLiteral("became active")));
}

TEST_F(ApplicationActivityTest, ProgramStaysActiveWhenAnotherOfItsWindowsTakesTheFocus)
{
    const ShownWindow one({100, 200, 300, 150}, 0, WindowLevel::Normal);
    const ShownWindow two({500, 200, 300, 150}, 0, WindowLevel::Normal);
    one.show();
    two.show();
    activate(one);
    const ApplicationActivitySource source(m_activity);
    m_notices.clear();
    activate(two);
    activate(one);
    EXPECT_THAT(m_notices, IsEmpty());
    EXPECT_TRUE(m_activity.isActive());
}

TEST_F(ApplicationActivityTest, ProgramIsInactiveWhenItsLastWindowIsHiddenOrDestroyed)
{
    const OtherProgram other;
    auto shown = std::make_unique<ShownWindow>(QRectF(100, 200, 300, 150), 0U, WindowLevel::Normal);
    shown->show();
    activate(*shown);
    const ApplicationActivitySource source(m_activity);
    EXPECT_TRUE(m_activity.isActive());
    shown->window().orderOut();
    EXPECT_TRUE(waitUntil([&] { return !m_activity.isActive(); }));

    shown->show();
    activate(*shown);
    EXPECT_TRUE(waitUntil([&] { return m_activity.isActive(); }));
    shown.reset();
    EXPECT_TRUE(waitUntil([&] { return !m_activity.isActive(); }));
}

TEST_F(ApplicationActivityTest, ProgramWithoutAWindowIsInactive)
{
    const OtherProgram other;
    {
        const ShownWindow shown({100, 200, 300, 150}, 0, WindowLevel::Normal);
        shown.show();
        activate(shown);
        other.activate();
        EXPECT_TRUE(waitUntil([&] { return !shown.widget().isActiveWindow(); }));
    }
    m_activity.setActive(true);
    m_notices.clear();
    const ApplicationActivitySource source(m_activity);
    EXPECT_FALSE(m_activity.isActive());
    EXPECT_THAT(m_notices, ElementsAre(QStringLiteral("will resign")));
}
