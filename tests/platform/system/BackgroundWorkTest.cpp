// SPDX-License-Identifier: MIT
#include "platform/system/BackgroundWork.h"

#include "tests/harness/WaitUntil.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <optional>

namespace {

const QString label = QStringLiteral("work");

/// Work that takes until it is cancelled, longer than the main thread waits.
BackgroundWork<int> endlessWork(std::atomic<bool> &hasEnded)
{
    return {label, [&hasEnded](const std::stop_token &stop) {
                std::latch stopped(1);
                const std::stop_callback whenStopped(stop, [&stopped] { stopped.count_down(); });
                stopped.wait();
                hasEnded = true;
                return 1;
            }};
}

} // namespace

TEST(BackgroundWork, QuickWorkHasItsResultAtOnce)
{
    BackgroundWork<int> work(label, [](const std::stop_token &) { return 7; });
    ASSERT_TRUE(work.quickResult());
    EXPECT_EQ(*work.resultWhileEventsRun(), 7);
}

TEST(BackgroundWork, SlowWorkPassesItsResultLater)
{
    std::latch mayEnd(1);
    BackgroundWork<int> work(label, [&mayEnd](const std::stop_token &) {
        mayEnd.wait();
        return 7;
    });
    EXPECT_FALSE(work.quickResult());
    int received = 0;
    work.passResultTo([&received](int result) { received = result; });
    mayEnd.count_down();
    EXPECT_TRUE(waitUntil([&received] { return received == 7; }));
}

TEST(BackgroundWork, IsCancelledWithItsOwnerAndPassesNothing)
{
    std::atomic<bool> hasEnded = false;
    bool hasReceived = false;
    {
        std::optional<BackgroundWork<int>> work(endlessWork(hasEnded));
        work->passResultTo([&hasReceived](int) { hasReceived = true; });
        const BackgroundWork<int> next = std::move(*work);
        work.reset(); // what has been moved from cancels nothing
        EXPECT_FALSE(next.quickResult());
    }
    EXPECT_TRUE(waitUntil([&hasEnded] { return hasEnded.load(); }));
    bool isLater = false;
    BackgroundWork<int> later(label, [](const std::stop_token &) { return 1; });
    later.passResultTo([&isLater](int) { isLater = true; });
    EXPECT_TRUE(waitUntil([&isLater] { return isLater; }));
    EXPECT_FALSE(hasReceived);
}

TEST(BackgroundWork, CancelledWhileEventsRunHasNoResult)
{
    std::atomic<bool> hasEnded = false;
    BackgroundWork<int> work = endlessWork(hasEnded);
    MainQueue::async([&work] { work.cancel(); });
    EXPECT_FALSE(work.resultWhileEventsRun());
    EXPECT_TRUE(hasEnded);
}
