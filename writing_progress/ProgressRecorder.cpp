// SPDX-License-Identifier: MIT
#include "writing_progress/ProgressRecorder.h"

#include "platform/logging/LogChannel.h"
#include "platform/session_bus/UserNotification.h"
#include "platform/system/FileURL.h"
#include "platform/system/MainQueue.h"
#include "writing_progress/ProgressText.h"

#include <QCoreApplication>

#include <utility>

namespace {

void notifyUser(const Milestone &milestone)
{
    const QString summary = milestone.kind == Milestone::Kind::GoalReached
        ? QCoreApplication::translate("writing_progress", "Goal reached")
        : QCoreApplication::translate("writing_progress", "Limit passed");
    showUserNotification(summary, milestoneText(milestone, lastPathComponent(fileURLOfPath(milestone.path))));
}

} // namespace

struct ProgressRecorder::Work {
    ProgressStore store;
    bool hasFailed = false;

    void noteOutcome(const ProgressStore::Failure &failure)
    {
        if (failure && !std::exchange(hasFailed, true))
            LogChannel::standard().error(
                u"The history of documents cannot be stored: {}", {publicly(failure->reason)});
        hasFailed = failure.has_value();
    }
};

ProgressRecorder::ProgressRecorder()
    : m_queue(QStringLiteral("progress"))
    , m_work(std::make_shared<Work>())
{
}

void ProgressRecorder::record(const DocumentCount &count)
{
    m_queue.async([work = m_work, count, now = QDateTime::currentDateTime()] {
        const auto milestones = work->store.record(count, now);
        work->noteOutcome(milestones ? std::nullopt : std::optional(milestones.error()));
        if (!milestones)
            return;
        for (const Milestone &milestone : milestones.value())
            notifyUser(milestone);
    });
}

void ProgressRecorder::move(const QByteArray &from, const QByteArray &to)
{
    m_queue.async([work = m_work, from, to] { work->noteOutcome(work->store.move(from, to)); });
}

void ProgressRecorder::whenRecorded(std::function<void()> function)
{
    const auto held = releaseOnMainThread(std::move(function));
    m_queue.async([held] { MainQueue::async([held] { (*held)(); }); });
}
