// SPDX-License-Identifier: MIT
#include "platform/system/Clock.h"

#include <QEventLoop>
#include <QTimer>

namespace {

class EventLoopTimer final : public ClockTimer {
public:
    explicit EventLoopTimer(std::function<void()> whenDue)
    {
        // Coarse timers may fire 5 % early, which would cut a quiet period of 150 ms short.
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.callOnTimeout(std::move(whenDue));
    }

    void start(std::chrono::milliseconds delay) override
    {
        m_timer.setSingleShot(true);
        m_timer.start(delay);
    }
    void repeat(std::chrono::milliseconds interval) override
    {
        m_timer.setSingleShot(false);
        m_timer.start(interval);
    }
    void stop() override { m_timer.stop(); }

private:
    QTimer m_timer;
};

class EventLoopClock final : public Clock {
public:
    [[nodiscard]] Time now() const override
    {
        return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch());
    }
    [[nodiscard]] std::chrono::nanoseconds timeOfDay() const override
    {
        return std::chrono::system_clock::now().time_since_epoch();
    }
    [[nodiscard]] std::unique_ptr<ClockTimer> makeTimer(std::function<void()> whenDue) override
    {
        return std::make_unique<EventLoopTimer>(std::move(whenDue));
    }
    void pause(std::chrono::milliseconds duration) override
    {
        QEventLoop loop;
        QTimer timer;
        timer.setTimerType(Qt::PreciseTimer);
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
        timer.start(duration);
        loop.exec();
    }
};

} // namespace

Clock &systemClock()
{
    static EventLoopClock clock;
    return clock;
}
