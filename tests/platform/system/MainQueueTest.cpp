// SPDX-License-Identifier: MIT
#include "platform/system/MainQueue.h"

#include "tests/harness/WaitUntil.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

#include <thread>
#include <vector>

using ::testing::ElementsAre;

namespace {

const std::thread::id mainThread = std::this_thread::get_id();

void runOnAnotherThread(const std::function<void()> &block)
{
    std::thread(block).join();
}

} // namespace

TEST(MainQueue, BlocksRunLaterOnTheMainThreadInOrder)
{
    std::vector<int> order;
    MainQueue::async([&order] { order.push_back(1); });
    runOnAnotherThread([&order] {
        EXPECT_FALSE(MainQueue::isCurrent());
        MainQueue::async([&order] {
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
            EXPECT_TRUE(MainQueue::isCurrent());
            order.push_back(2);
        });
    });
    MainQueue::async([&order] { order.push_back(3); });
    EXPECT_TRUE(order.empty());
    EXPECT_TRUE(waitUntil([&order] { return order.size() == 3; }));
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST(MainQueue, ABlockSubmittedByABlockRunsInALaterIteration)
{
    std::vector<int> order;
    MainQueue::async([&order] {
        MainQueue::async([&order] { order.push_back(3); });
        order.push_back(1);
    });
    MainQueue::async([&order] { order.push_back(2); });
    EXPECT_TRUE(waitUntil([&order] { return order.size() == 3; }));
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST(MainQueue, ABlockIsDestroyedOnTheMainThread)
{
    for (int i = 0; i < 500; ++i) {
        bool isReleased = false;
        runOnAnotherThread([&isReleased] {
            std::shared_ptr<void> held(nullptr, [&isReleased](void *) {
                EXPECT_EQ(std::this_thread::get_id(), mainThread);
                isReleased = true;
            });
            MainQueue::async([held = std::move(held)] {});
        });
        ASSERT_TRUE(waitUntil([&isReleased] { return isReleased; }));
    }
}

TEST(ReleaseOnMainThread, AValueDroppedOnAnotherThreadIsDestroyedOnTheMainThread)
{
    bool isReleased = false;
    std::shared_ptr<void> held(nullptr, [&isReleased](void *) {
        EXPECT_EQ(std::this_thread::get_id(), mainThread);
        isReleased = true;
    });
    auto wrapped = releaseOnMainThread(std::move(held));
    runOnAnotherThread([&wrapped] { wrapped = nullptr; });
    EXPECT_FALSE(isReleased);
    EXPECT_TRUE(waitUntil([&isReleased] { return isReleased; }));
}

TEST(ReleaseOnMainThread, AValueDroppedOnTheMainThreadIsDestroyedAtOnce)
{
    bool isReleased = false;
    auto wrapped =
        releaseOnMainThread(std::shared_ptr<void>(nullptr, [&isReleased](void *) { isReleased = true; }));
    wrapped = nullptr;
    EXPECT_TRUE(isReleased);
}
