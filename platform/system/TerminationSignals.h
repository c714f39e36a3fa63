// SPDX-License-Identifier: MIT
// TerminationSignals turns the signals that ask the process to exit into a call on its event loop.
// Thread: main.  Owner: main().
#pragma once

#include "platform/system/OwnedDescriptor.h"

#include <QSocketNotifier>

#include <functional>

class TerminationSignals {
public:
    /// Blocks SIGTERM, SIGINT and SIGHUP, so that they wait for an object of this class. To be called before
    /// there is a second thread, which would receive them otherwise.
    static void block();

    explicit TerminationSignals(std::function<void()> call);
    TerminationSignals(const TerminationSignals &) = delete;
    TerminationSignals &operator=(const TerminationSignals &) = delete;
    ~TerminationSignals() = default;

private:
    OwnedDescriptor m_signals;
    QSocketNotifier m_notifier;
};
