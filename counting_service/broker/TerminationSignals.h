// SPDX-License-Identifier: MIT
// TerminationSignals turns the signals that ask a process to end into a call on its event loop.
// Thread: main.  Owner: main().
#pragma once

#include "counting_service/protocol/PacketSocket.h"

#include <QSocketNotifier>

#include <functional>

class TerminationSignals {
public:
    /// Keeps SIGTERM, SIGINT and SIGHUP for later. To be called before there is a second thread.
    static void block();

    explicit TerminationSignals(std::function<void()> call);
    TerminationSignals(const TerminationSignals &) = delete;
    TerminationSignals &operator=(const TerminationSignals &) = delete;
    ~TerminationSignals() = default;

private:
    OwnedDescriptor m_signals;
    QSocketNotifier m_notifier;
};
