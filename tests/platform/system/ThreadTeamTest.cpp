// SPDX-License-Identifier: MIT
#include "platform/system/ThreadTeam.h"

#include "tests/harness/QuillbayTest.h"

#include <array>
#include <atomic>

TEST(ThreadTeam, EachThreadDoesTheWorkOnceBesidesTheCaller)
{
    ThreadTeam team(3);
    ASSERT_EQ(team.size(), 3);
    for (int round = 1; round <= 100; ++round) {
        std::array<std::atomic<int>, 3> done{};
        std::atomic<int> isOnCaller = 0;
        team.start([&, caller = std::this_thread::get_id()](int thread) {
            ++done.at(static_cast<size_t>(thread));
            isOnCaller += std::this_thread::get_id() == caller ? 1 : 0;
        });
        while (!team.waitFor(std::chrono::seconds(1))) { }
        for (const std::atomic<int> &count : done)
            EXPECT_EQ(count, 1);
        EXPECT_EQ(isOnCaller, 0);
    }
}

TEST(ThreadTeam, SaysThatWorkIsNotFinished)
{
    std::atomic<bool> mayFinish = false;
    ThreadTeam team(1);
    team.start([&](int) { mayFinish.wait(false); });
    EXPECT_FALSE(team.waitFor(std::chrono::milliseconds(1)));
    mayFinish = true;
    mayFinish.notify_all();
    EXPECT_TRUE(team.waitFor(std::chrono::minutes(1)));
}

TEST(ThreadTeam, FinishesItsWorkBeforeItIsDestroyed)
{
    std::atomic<int> done = 0;
    {
        ThreadTeam team(4);
        team.start([&](int) { ++done; });
    }
    EXPECT_EQ(done, 4);
}

TEST(ThreadTeam, MayHaveNoThreads)
{
    ThreadTeam team(0);
    team.start([](int) { FAIL(); });
    EXPECT_TRUE(team.waitFor(std::chrono::milliseconds(0)));
}
