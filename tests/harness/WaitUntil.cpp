// SPDX-License-Identifier: MIT
#include "tests/harness/WaitUntil.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>

bool waitUntil(const std::function<bool()> &condition, std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        // Returns at the next event; the short bound serves conditions that no event announces.
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
    }
    return true;
}
