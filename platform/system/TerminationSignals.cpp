// SPDX-License-Identifier: MIT
#include "platform/system/TerminationSignals.h"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

#include <utility>

namespace {

sigset_t terminationSignals()
{
    sigset_t signals;
    ::sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        ::sigaddset(&signals, signal);
    return signals;
}

int newSignalDescriptor()
{
    const sigset_t signals = terminationSignals();
    return ::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

void TerminationSignals::block()
{
    const sigset_t signals = terminationSignals();
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
}

TerminationSignals::TerminationSignals(std::function<void()> call)
    : m_signals(newSignalDescriptor())
    , m_notifier(m_signals.get(), QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this, call = std::move(call)] {
        signalfd_siginfo signal = {};
        if (::read(m_signals.get(), &signal, sizeof signal) == sizeof signal)
            call();
    });
}
