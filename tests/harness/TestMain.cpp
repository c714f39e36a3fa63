// SPDX-License-Identifier: MIT
// The main() of every test program.
#include "tests/harness/SessionBus.h"
#include "tests/harness/TestHome.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

namespace {

class FreshWorldForEveryTest : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo &) override { TestHome::instance().reset(); }
};

} // namespace

int main(int argumentCount, char **arguments)
{
    TestHome::instance();
    const QCoreApplication application(argumentCount, arguments);
    ::testing::InitGoogleMock(&argumentCount, arguments);
    ::testing::UnitTest::GetInstance()->listeners().Append(new FreshWorldForEveryTest);
    const int result = RUN_ALL_TESTS();
    SessionBus::stop();
    return result;
}
