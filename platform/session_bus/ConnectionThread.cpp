// SPDX-License-Identifier: MIT
#include "platform/session_bus/ConnectionThread.h"

#include <QCoreApplication>
#include <QThread>

#include <mutex>
#include <utility>

namespace {

std::mutex mutex;
// Not owned by a static object: a process that exits without its QCoreApplication ending, as Qt does when the
// X server dies, would destroy it while it runs, and Qt aborts then.
QThread *thread = nullptr;

// Qt's own thread for the bus ends after the application object, so ours never talks to one that is gone.
void stop()
{
    QThread *stopped = nullptr;
    {
        const std::lock_guard guard(mutex);
        stopped = std::exchange(thread, nullptr);
    }
    stopped->quit();
    stopped->wait(); // without the mutex: a handler may still make connections
    delete stopped;
}

} // namespace

QThread *ConnectionThread::shared()
{
    const std::lock_guard guard(mutex);
    if (!thread) {
        thread = new QThread;
        thread->setObjectName(QStringLiteral("connections"));
        thread->start();
        qAddPostRoutine(stop);
    }
    return thread;
}
