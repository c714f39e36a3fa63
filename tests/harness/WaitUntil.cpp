// SPDX-License-Identifier: MIT
#include "tests/harness/WaitUntil.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <algorithm>

namespace {

// A machine that freezes stops the awaited process as well, so a long turn counts as a short one.
constexpr std::chrono::milliseconds maxCountedTurn{100};

} // namespace

bool waitUntil(const std::function<bool()> &condition, std::chrono::milliseconds timeout)
{
    std::chrono::milliseconds waited{0};
    QElapsedTimer turn;
    turn.start();
    while (!condition()) {
        if (waited >= timeout)
            return false;
        // Returns at the next event; the short interval is for conditions without an event.
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
        waited += std::min(std::chrono::milliseconds(turn.restart()), maxCountedTurn);
    }
    return true;
}
