// SPDX-License-Identifier: MIT
#include "platform/display/Displays.h"
#include "tests/harness/Compositor.h"
#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"

namespace {

class DisplaysTest : public QuillbayTest {
protected:
    DisplaysTest()
    {
        TestDisplay::start();
        qunsetenv("QT_QPA_PLATFORM");
    }
    ~DisplaysTest() override { qputenv("QT_QPA_PLATFORM", "xcb"); }
};

} // namespace

TEST_F(DisplaysTest, OneThatAnswersIsKept)
{
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("WAYLAND_DISPLAY", "missing");
    Displays::forgetUnreachable();
    EXPECT_EQ(qgetenv("DISPLAY"), display);
    EXPECT_FALSE(qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
    EXPECT_TRUE(Displays::isAny());
    EXPECT_TRUE(Displays::keepWindowsAbove());
}

TEST_F(DisplaysTest, OneThatDoesNotAnswerIsForgotten)
{
    for (const char *const name : {"", ":54321", "nonsense"}) {
        qputenv("DISPLAY", name);
        Displays::forgetUnreachable();
        EXPECT_FALSE(qEnvironmentVariableIsSet("DISPLAY"));
        EXPECT_FALSE(Displays::isAny());
        EXPECT_FALSE(Displays::keepWindowsAbove());
    }
}

TEST_F(DisplaysTest, AWaylandCompositorIsADisplayWhoseWindowsDoNotStayAbove)
{
    SKIP_WITHOUT_PACKAGE(TestCompositor::isInstalled(), TestCompositor::packages);
    const TestCompositor compositor;
    qunsetenv("DISPLAY");
    Displays::forgetUnreachable();
    EXPECT_TRUE(qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
    EXPECT_FALSE(Displays::keepWindowsAbove());
}
