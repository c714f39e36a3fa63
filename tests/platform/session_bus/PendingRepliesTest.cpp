// SPDX-License-Identifier: MIT
#include "platform/session_bus/PendingReplies.h"

#include <gmock/gmock.h>

#include <atomic>
#include <memory>
#include <vector>

namespace {

class CountsItsOwnCalls {
public:
    [[nodiscard]] RemoteReplyHandler handler()
    {
        return [this](const RemoteReply &reply) {
            ++calls;
            last = reply;
        };
    }

    int calls = 0;
    RemoteReply last = {};
};

} // namespace

TEST(PendingReplies, AnErrorReachesTheErrorHandlerInPlaceOfTheReply)
{
    PendingReplies pending;
    QStringList errors;
    const auto fail = [](const RemoteReply &) { FAIL(); };
    const auto note = [&errors](const QString &message) { errors.append(message); };
    const auto identifier = pending.add(fail, note);
    pending.deliverError(identifier, QStringLiteral("why"));
    pending.deliverError(identifier, QStringLiteral("again"));
    pending.deliver(identifier, {});
    pending.deliverError(pending.add(fail), QStringLiteral("nobody wants to know"));
    const auto late = pending.add(fail, note);
    pending.close();
    pending.deliverError(late, QStringLiteral("late"));
    EXPECT_EQ(errors, QStringList(QStringLiteral("why")));
}

TEST(PendingReplies, AReplyReachesTheHandlerOfItsRequestOnce)
{
    CountsItsOwnCalls first;
    CountsItsOwnCalls second;
    PendingReplies pending;
    const auto one = pending.add(first.handler());
    const auto two = pending.add(second.handler());
    pending.deliver(two, {2});
    pending.deliver(one, {1});
    pending.deliver(one, {3});
    pending.deliver(two, {3});
    EXPECT_EQ(first.calls, 1);
    EXPECT_EQ(first.last, RemoteReply{1});
    EXPECT_EQ(second.calls, 1);
    EXPECT_EQ(second.last, RemoteReply{2});
}

TEST(PendingReplies, ADroppedHandlerIsNotCalled)
{
    CountsItsOwnCalls handler;
    PendingReplies pending;
    const auto identifier = pending.add(handler.handler());
    pending.drop(identifier);
    pending.drop(identifier);
    pending.deliver(identifier, {});
    EXPECT_EQ(handler.calls, 0);
}

TEST(PendingReplies, NothingIsDeliveredOnceClosed)
{
    CountsItsOwnCalls handler;
    PendingReplies pending;
    const auto before = pending.add(handler.handler());
    pending.close();
    const auto after = pending.add(handler.handler());
    pending.deliver(before, {});
    pending.deliver(after, {});
    EXPECT_EQ(handler.calls, 0);
}

TEST(PendingReplies, HandlersAreDestroyedWhenCalledDroppedClosedOrTooLate)
{
    PendingReplies pending;
    const auto held = std::make_shared<int>();
    const auto handler = [&held] { return [held](const RemoteReply &) {}; };
    pending.deliver(pending.add(handler()), {});
    EXPECT_EQ(held.use_count(), 1);
    pending.drop(pending.add(handler()));
    EXPECT_EQ(held.use_count(), 1);
    pending.add(handler());
    EXPECT_EQ(held.use_count(), 2);
    pending.close();
    EXPECT_EQ(held.use_count(), 1);
    pending.add(handler());
    EXPECT_EQ(held.use_count(), 1);
}

// A handler may own the last reference to an object that closes the connection when it is destroyed.
TEST(PendingReplies, AHandlerMayCloseWhileItRunsAndWhileItIsDestroyed)
{
    PendingReplies pending;
    const std::shared_ptr<void> closer(nullptr, [&pending](void *) { pending.close(); });
    CountsItsOwnCalls other;
    const auto never = pending.add(other.handler());
    auto identifier = pending.add([closer, &pending](const RemoteReply &) { pending.close(); });
    pending.deliver(identifier, {});
    pending.deliver(never, {});
    EXPECT_EQ(other.calls, 0);
}

TEST(PendingReplies, HandlersMayAddAndDropOthersWhileTheyAreDestroyed)
{
    PendingReplies pending;
    const auto adder = [&pending] {
        const std::shared_ptr<void> held(
            nullptr, [&pending](void *) { pending.drop(pending.add([](const RemoteReply &) {})); });
        return [held](const RemoteReply &) {};
    };
    pending.deliver(pending.add(adder()), {});
    pending.drop(pending.add(adder()));
    pending.add(adder());
    pending.close();
    pending.add(adder());
}

// Closes after every possible number of deliveries, while the next one is pending.
TEST(PendingReplies, NothingIsDeliveredAfterARaceWithClose)
{
    constexpr int replies = 8;
    for (int round = 0; round < 1000; ++round) {
        PendingReplies pending;
        std::atomic<int> started = 0;
        int ended = 0; // not atomic: close() guarantees that these two are not used at once
        bool isOver = false;
        std::vector<PendingReplies::Identifier> identifiers;
        for (int i = 0; i < replies; ++i) {
            identifiers.push_back(pending.add([&](const RemoteReply &) {
                EXPECT_FALSE(isOver);
                ++started;
                started.notify_one();
                ++ended;
            }));
        }
        std::thread deliverer([&] {
            for (const auto identifier : identifiers)
                pending.deliver(identifier, {});
        });
        for (int seen = 0; seen < round % replies; seen = started)
            started.wait(seen);
        pending.close();
        isOver = true;
        ASSERT_GE(ended, round % replies);
        ASSERT_EQ(ended, started);
        deliverer.join();
        ASSERT_EQ(ended, started);
    }
}

TEST(PendingReplies, RequestsMayBeAddedOnManyThreads)
{
    PendingReplies pending;
    std::atomic<int> calls = 0;
    std::vector<std::thread> threads;
    std::vector<std::vector<PendingReplies::Identifier>> identifiers(4);
    for (auto &added : identifiers) {
        threads.emplace_back([&pending, &calls, &added] {
            for (int i = 0; i < 500; ++i)
                added.push_back(pending.add([&calls](const RemoteReply &) { ++calls; }));
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (const auto &added : identifiers) {
        for (const auto identifier : added)
            pending.deliver(identifier, {});
    }
    EXPECT_EQ(calls, 2000);
}
