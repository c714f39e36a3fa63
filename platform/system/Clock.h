// SPDX-License-Identifier: MIT
// Clock gives the time and runs work later. It is a seam: tests have a clock of their own.
// Thread: main.  Owner: the process for systemClock(); a test for its own.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

/// Calls its function when it is due, never from inside start() or repeat(). Destroying it stops it.
class ClockTimer {
public:
    ClockTimer() = default;
    ClockTimer(const ClockTimer &) = delete;
    ClockTimer &operator=(const ClockTimer &) = delete;
    virtual ~ClockTimer() = default;

    // Both replace what was started before.

    virtual void start(std::chrono::milliseconds delay) = 0;
    virtual void repeat(std::chrono::milliseconds interval) = 0;
    virtual void stop() = 0;
};

class Clock {
public:
    /// Since an arbitrary moment; never goes back.
    using Time = std::chrono::milliseconds;

    Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;
    virtual ~Clock() = default;

    [[nodiscard]] virtual Time now() const = 0;
    /// The time of day, since 1970, as files are stamped with it; may jump.
    [[nodiscard]] virtual std::chrono::nanoseconds timeOfDay() const = 0;
    [[nodiscard]] virtual std::unique_ptr<ClockTimer> makeTimer(std::function<void()> whenDue) = 0;
    /// Waits, and runs the event loop of the main thread meanwhile, so anything may have changed when it
    /// returns.
    virtual void pause(std::chrono::milliseconds duration) = 0;
};

/// The clock of the event loop.
Clock &systemClock();
