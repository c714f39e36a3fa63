// SPDX-License-Identifier: MIT
// The main() of the test programs with windows: all their tests share one QApplication on the private
// display.
#include "tests/harness/Display.h"
#include "tests/harness/SessionBus.h"
#include "tests/harness/TestExit.h"
#include "tests/harness/TestHome.h"

#include <QApplication>

#include <gmock/gmock.h>

namespace {

class FreshWorldForEveryTest : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo &) override { TestHome::instance().reset(); }
};

int runTests(int &argumentCount, char **arguments)
{
    TestDisplay::start();
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}

} // namespace

int main(int argumentCount, char **arguments)
{
    TestHome::instance();
    ::testing::InitGoogleMock(&argumentCount, arguments);
    if (::testing::GTEST_FLAG(list_tests)) // needs no display
        return RUN_ALL_TESTS();
    ::testing::UnitTest::GetInstance()->listeners().Append(new FreshWorldForEveryTest);
    const int result = runTests(argumentCount, arguments);
    TestDisplay::stop();
    SessionBus::stop();
    exitTest(result);
}
