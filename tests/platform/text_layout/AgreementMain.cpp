// SPDX-License-Identifier: MIT
// The main() of the tests that need Qt's own text layout: they have a QGuiApplication, and Qt sees no font of
// the machine.
#include "tests/harness/TestHome.h"
#include "tests/platform/text_layout/FontWorld.h"

#include <QFontDatabase>
#include <QGuiApplication>

#include <gmock/gmock.h>

namespace {

class FreshWorldForEveryTest : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo &) override { TestHome::instance().reset(); }
};

} // namespace

int main(int argumentCount, char **arguments)
{
    TestHome::instance();
    useOnlyFonts({});
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argumentCount, arguments);
    (void)QFontDatabase::families(); // reads the configuration now, before a test has one of its own
    ::testing::InitGoogleMock(&argumentCount, arguments);
    ::testing::UnitTest::GetInstance()->listeners().Append(new FreshWorldForEveryTest);
    return RUN_ALL_TESTS();
}
