// SPDX-License-Identifier: MIT
#include "platform/connection/ConnectionThread.h"

#include <QCoreApplication>
#include <QThread>

#include <memory>
#include <mutex>

namespace {

std::mutex mutex;
std::unique_ptr<QThread> thread;

// Qt's own thread for the bus ends after the application object, so ours never talks to one that is gone.
void stop()
{
    std::unique_ptr<QThread> stopped;
    {
        const std::lock_guard guard(mutex);
        stopped = std::move(thread);
    }
    stopped->quit();
    stopped->wait(); // without the mutex: a handler may still make connections
}

} // namespace

QThread *ConnectionThread::shared()
{
    const std::lock_guard guard(mutex);
    if (!thread) {
        thread = std::make_unique<QThread>();
        thread->setObjectName(QStringLiteral("connections"));
        thread->start();
        qAddPostRoutine(stop);
    }
    return thread.get();
}
