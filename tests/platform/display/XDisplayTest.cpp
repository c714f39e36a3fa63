// SPDX-License-Identifier: MIT
#include "platform/display/XDisplay.h"
#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"

class XDisplayTest : public QuillbayTest { };

TEST_F(XDisplayTest, NamesTheWindowManagerAndWhatItCan)
{
    TestDisplay::start();
    const std::optional<XDisplay> display = readXDisplay();
    ASSERT_TRUE(display);
    EXPECT_TRUE(display->hasWindowManager);
    EXPECT_EQ(display->windowManager, QStringLiteral("Openbox"));
    EXPECT_TRUE(display->keepsWindowsAbove);
    EXPECT_FALSE(display->showsTrayIcons);
}

TEST_F(XDisplayTest, WithoutAWindowManagerNothingStaysAbove)
{
    ChildProcess server(QStringLiteral("/usr/bin/Xvfb"));
    server.start({"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "640x480x24"});
    qputenv("DISPLAY", ':' + server.readLine());
    const std::optional<XDisplay> display = readXDisplay();
    ASSERT_TRUE(display);
    EXPECT_FALSE(display->hasWindowManager);
    EXPECT_FALSE(display->keepsWindowsAbove);
}

TEST_F(XDisplayTest, ADisplayThatDoesNotAnswerIsAbsent)
{
    qputenv("DISPLAY", ":4711");
    EXPECT_FALSE(readXDisplay());
}
