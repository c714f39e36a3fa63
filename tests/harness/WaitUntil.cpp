// SPDX-License-Identifier: MIT
#include "tests/harness/WaitUntil.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <algorithm>

namespace {

// A machine that stands still for a while lets nobody else work either: that is no time of waiting.
constexpr std::chrono::milliseconds longestTurn{100};

} // namespace

bool waitUntil(const std::function<bool()> &condition, std::chrono::milliseconds limit)
{
    std::chrono::milliseconds waited{0};
    QElapsedTimer turn;
    turn.start();
    while (!condition()) {
        if (waited >= limit)
            return false;
        // Returns at the next event; the short bound serves conditions that no event announces.
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
        waited += std::min(std::chrono::milliseconds(turn.restart()), longestTurn);
    }
    return true;
}
