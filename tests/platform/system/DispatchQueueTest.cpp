// SPDX-License-Identifier: MIT
#include "platform/system/DispatchQueue.h"

#include <gmock/gmock.h>

#include <array>
#include <future>
#include <numeric>
#include <thread>
#include <vector>

#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

std::string nameOfThisThread()
{
    std::array<char, 16> name = {};
    pthread_getname_np(pthread_self(), name.data(), name.size());
    return name.data();
}

} // namespace

TEST(DispatchQueue, BlocksRunInOrderOneAtATime)
{
    DispatchQueue queue(QStringLiteral("order"));
    std::vector<int> order; // needs no mutex: one block at a time
    std::promise<void> done;
    for (int i = 0; i < 1000; ++i)
        queue.async([&order, i] { order.push_back(i); });
    queue.async([&done] { done.set_value(); });
    done.get_future().wait();
    std::vector<int> expected(1000);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(order, expected);
}

TEST(DispatchQueue, BlocksRunOnAThreadNamedForTheLabel)
{
    std::promise<std::string> name;
    std::promise<std::thread::id> thread;
    DispatchQueue(QStringLiteral("com.example.label")).async([&] {
        name.set_value(nameOfThisThread());
        thread.set_value(std::this_thread::get_id());
    });
    EXPECT_EQ(name.get_future().get(), "com.example.lab");
    EXPECT_NE(thread.get_future().get(), std::this_thread::get_id());
}

TEST(DispatchQueue, WorkOutlivesItsQueue)
{
    std::promise<void> gate;
    std::promise<int> result;
    {
        DispatchQueue queue(QStringLiteral("short"));
        queue.async([&gate] { gate.get_future().wait(); });
        queue.async([&result] { result.set_value(42); });
    }
    gate.set_value();
    EXPECT_EQ(result.get_future().get(), 42);
}

TEST(DispatchQueue, AsyncDoesNotWaitForTheBlock)
{
    std::promise<void> gate;
    std::promise<void> ended;
    DispatchQueue(QStringLiteral("waiting")).async([&] {
        gate.get_future().wait();
        ended.set_value();
    });
    gate.set_value(); // the block would wait for ever
    ended.get_future().wait();
}

TEST(DispatchQueue, AnEmptyQueueAcceptsMoreWork)
{
    DispatchQueue queue(QStringLiteral("again"));
    for (int i = 0; i < 200; ++i) {
        std::promise<int> result;
        queue.async([&result, i] { result.set_value(i); });
        EXPECT_EQ(result.get_future().get(), i);
    }
}

TEST(DispatchQueue, ABlockMaySubmitToItsOwnQueue)
{
    DispatchQueue queue(QStringLiteral("self"));
    std::promise<void> done;
    queue.async([&] { queue.async([&done] { done.set_value(); }); });
    done.get_future().wait();
}

TEST(DispatchQueue, ABlockIsDestroyedBeforeTheNextOneRuns)
{
    DispatchQueue queue(QStringLiteral("lives"));
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> watched = held;
    std::promise<bool> isGone;
    queue.async([held = std::move(held)] {});
    queue.async([&] { isGone.set_value(watched.expired()); });
    EXPECT_TRUE(isGone.get_future().get());
}

TEST(DispatchQueue, WithoutAThreadABlockRunsAtOnce)
{
    const auto runWithoutThreads = [] {
        // The limit does not apply to root.
        if (::getuid() == 0 && ::setuid(65534) != 0)
            ::_exit(2);
        const rlimit none{0, 0};
        ::setrlimit(RLIMIT_NPROC, &none);
        bool hasRun = false;
        DispatchQueue queue(QStringLiteral("none"));
        queue.async([&hasRun] { hasRun = true; });
        ::_exit(hasRun ? 0 : 1);
    };
    EXPECT_EXIT(runWithoutThreads(), ::testing::ExitedWithCode(0), "");
}
