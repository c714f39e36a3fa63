// SPDX-License-Identifier: MIT
// The main() of every test program.
#include "tests/harness/SessionBus.h"
#include "tests/harness/TestExit.h"
#include "tests/harness/TestHome.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

namespace {

class FreshWorldForEveryTest : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo &) override { TestHome::instance().reset(); }
};

int runTests(int &argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    ::testing::InitGoogleMock(&argumentCount, arguments);
    ::testing::UnitTest::GetInstance()->listeners().Append(new FreshWorldForEveryTest);
    return RUN_ALL_TESTS();
}

} // namespace

int main(int argumentCount, char **arguments)
{
    TestHome::instance();
    const int result = runTests(argumentCount, arguments);
    SessionBus::stop();
    exitTest(result);
}
