// SPDX-License-Identifier: MIT
#include "platform/system/MainQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QThread>

#include <mutex>

namespace {

// The event is the only owner of its block, so no copy remains on the sending thread.
class BlockEvent : public QEvent {
public:
    explicit BlockEvent(std::function<void()> block)
        : QEvent(QEvent::User)
        , m_block(std::move(block))
    {
    }
    void run() const { m_block(); }

private:
    std::function<void()> m_block;
};

class Receiver : public QObject {
protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        static_cast<BlockEvent *>(event)->run();
        return true;
    }
};

std::mutex mutex;
std::unique_ptr<Receiver> receiver; // lives on the main thread; null after the application

void removeReceiver()
{
    std::unique_ptr<Receiver> removed; // outlives the guard: destroyed blocks may call this queue
    const std::lock_guard guard(mutex);
    removed = std::move(receiver);
}

} // namespace

void MainQueue::async(std::function<void()> block)
{
    const std::lock_guard guard(mutex);
    const QCoreApplication *application = QCoreApplication::instance();
    if (!application || QCoreApplication::closingDown())
        return;
    if (!receiver) {
        receiver = std::make_unique<Receiver>();
        receiver->moveToThread(application->thread());
        qAddPostRoutine(removeReceiver);
    }
    QCoreApplication::postEvent(receiver.get(), new BlockEvent(std::move(block)));
}

bool MainQueue::isCurrent()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return application && application->thread() == QThread::currentThread();
}
