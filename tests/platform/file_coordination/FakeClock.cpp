// SPDX-License-Identifier: MIT
#include "tests/platform/file_coordination/FakeClock.h"

#include <QCoreApplication>

class FakeClock::Handle final : public ClockTimer {
public:
    Handle(const FakeClock &clock, std::shared_ptr<Timer> timer)
        : m_clock(clock)
        , m_timer(std::move(timer))
    {
    }

    void start(std::chrono::milliseconds delay) override
    {
        m_timer->due = m_clock.now() + delay;
        m_timer->interval.reset();
    }
    void repeat(std::chrono::milliseconds interval) override
    {
        m_timer->due = m_clock.now() + interval;
        m_timer->interval = interval;
    }
    void stop() override { m_timer->due.reset(); }

private:
    const FakeClock &m_clock;
    std::shared_ptr<Timer> m_timer;
};

std::chrono::nanoseconds FakeClock::timeOfDay() const
{
    return std::chrono::system_clock::now().time_since_epoch() + (m_now - start);
}

std::unique_ptr<ClockTimer> FakeClock::makeTimer(std::function<void()> whenDue)
{
    const auto timer = std::make_shared<Timer>();
    timer->whenDue = std::move(whenDue);
    m_timers.push_back(timer);
    return std::make_unique<Handle>(*this, timer);
}

void FakeClock::pause(std::chrono::milliseconds duration)
{
    m_paused += duration;
    QCoreApplication::processEvents();
    advance(duration);
}

void FakeClock::advance(std::chrono::milliseconds duration)
{
    const Time until = m_now + duration;
    while (const std::shared_ptr<Timer> timer = nextDue(until)) {
        m_now = std::max(m_now, *timer->due);
        if (timer->interval)
            timer->due = *timer->due + *timer->interval;
        else
            timer->due.reset();
        timer->whenDue();
    }
    m_now = std::max(m_now, until);
}

std::shared_ptr<FakeClock::Timer> FakeClock::nextDue(Time until) const
{
    std::shared_ptr<Timer> next;
    for (const std::weak_ptr<Timer> &known : m_timers) {
        const std::shared_ptr<Timer> timer = known.lock();
        if (timer && timer->due && *timer->due <= until && (!next || *timer->due < *next->due))
            next = timer;
    }
    return next;
}

int FakeClock::runningTimers() const
{
    int running = 0;
    for (const std::weak_ptr<Timer> &known : m_timers) {
        const std::shared_ptr<Timer> timer = known.lock();
        running += timer && timer->due;
    }
    return running;
}
