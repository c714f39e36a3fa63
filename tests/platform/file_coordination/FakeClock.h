// SPDX-License-Identifier: MIT
// FakeClock stands still until a test moves it on.
// Thread: main.  Owner: the test; it must outlive its timers.
#pragma once

#include "platform/system/Clock.h"

#include <list>
#include <optional>

class FakeClock final : public Clock {
public:
    [[nodiscard]] Time now() const override { return m_now; }
    [[nodiscard]] std::unique_ptr<ClockTimer> makeTimer(std::function<void()> whenDue) override;
    /// Moves the clock on, and serves the main thread's events.
    void pause(std::chrono::milliseconds duration) override;

    /// Calls what becomes due, in its order and at its time.
    void advance(std::chrono::milliseconds duration);

    /// How many timers have been started and have not ended.
    [[nodiscard]] int runningTimers() const;
    /// How long the code under test has been waiting in pause().
    [[nodiscard]] Time paused() const { return m_paused; }

private:
    struct Timer {
        std::function<void()> whenDue;
        std::optional<Time> due;
        std::optional<Time> interval;
    };
    class Handle;

    [[nodiscard]] std::shared_ptr<Timer> nextDue(Time until) const;

    Time m_now{1'000'000};
    Time m_paused{};
    std::list<std::weak_ptr<Timer>> m_timers;
};
