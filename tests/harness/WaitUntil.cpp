// SPDX-License-Identifier: MIT
#include "tests/harness/WaitUntil.h"

#include "platform/system/Sanitizers.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

namespace {

// A machine that freezes stops the awaited process as well, so a long turn counts as a short one.
constexpr std::chrono::milliseconds maxCountedTurn{100};

} // namespace

bool waitUntil(const std::function<bool()> &condition, std::chrono::milliseconds timeout)
{
    QTimer tick; // wakes the loop for conditions without an event
    tick.start(std::chrono::milliseconds(10));
    std::chrono::milliseconds waited{0};
    QElapsedTimer turn;
    turn.start();
    while (!condition()) {
        if (waited >= timeout * (isSanitized ? 4 : 1))
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        waited += std::min(std::chrono::milliseconds(turn.restart()), maxCountedTurn);
    }
    return true;
}
