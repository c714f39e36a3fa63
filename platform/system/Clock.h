// SPDX-License-Identifier: MIT
// Clock is the time that passes and the work put off until later, as a seam: tests have a clock of their own.
// Thread: main.  Owner: the process for systemClock(); a test for its own.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

/// Calls its function once its time has come, never from inside start() or repeat(); at the end of its life
/// it is stopped.
class ClockTimer {
public:
    ClockTimer() = default;
    ClockTimer(const ClockTimer &) = delete;
    ClockTimer &operator=(const ClockTimer &) = delete;
    virtual ~ClockTimer() = default;

    // Each replaces what was started before.
    virtual void start(std::chrono::milliseconds delay) = 0;
    virtual void repeat(std::chrono::milliseconds interval) = 0;
    virtual void stop() = 0;
};

class Clock {
public:
    /// Since a moment of the clock's own choice; never goes back.
    using Time = std::chrono::milliseconds;

    Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;
    virtual ~Clock() = default;

    [[nodiscard]] virtual Time now() const = 0;
    [[nodiscard]] virtual std::unique_ptr<ClockTimer> makeTimer(std::function<void()> whenDue) = 0;
    /// Returns after this time; the events of the main thread are served meanwhile, so anything may have
    /// happened when it returns.
    virtual void pause(std::chrono::milliseconds duration) = 0;
};

/// The event loop's.
Clock &systemClock();
