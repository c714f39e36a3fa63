// SPDX-License-Identifier: MIT
// FakeClock stands still until a test advances it.
// Thread: main.  Owner: the test; it must outlive its timers.
#pragma once

#include "platform/system/Clock.h"

#include <list>
#include <optional>

class FakeClock final : public Clock {
public:
    [[nodiscard]] Time now() const override { return m_now; }
    /// The real time of day, later by what the clock was advanced: files get real times.
    [[nodiscard]] std::chrono::nanoseconds timeOfDay() const override;
    [[nodiscard]] std::unique_ptr<ClockTimer> makeTimer(std::function<void()> whenDue) override;
    /// Advances the clock, and runs the event loop of the main thread.
    void pause(std::chrono::milliseconds duration) override;

    /// Calls the timers that are due, in order and at their times.
    void advance(std::chrono::milliseconds duration);

    /// The number of running timers.
    [[nodiscard]] int runningTimers() const;
    /// The total time that the code under test has spent in pause().
    [[nodiscard]] Time paused() const { return m_paused; }

private:
    struct Timer {
        std::function<void()> whenDue;
        std::optional<Time> due;
        std::optional<Time> interval;
    };
    class Handle;

    [[nodiscard]] std::shared_ptr<Timer> nextDue(Time until) const;

    static constexpr Time start{1'000'000};

    Time m_now = start;
    Time m_paused{};
    std::list<std::weak_ptr<Timer>> m_timers;
};
