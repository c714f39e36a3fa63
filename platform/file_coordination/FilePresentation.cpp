// SPDX-License-Identifier: MIT
#include "platform/file_coordination/FilePresentation.h"

#include "platform/file_coordination/FilePlaces.h"
#include "platform/file_coordination/FilePresentations.h"
#include "platform/file_coordination/HeldFiles.h"
#include "platform/file_coordination/WriterLock.h"
#include "platform/logging/LogChannel.h"
#include "platform/system/FileURL.h"
#include "platform/system/SystemError.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace {

/// Whether something else may have to be watched from now on.
bool concernsNames(FileEvent event)
{
    return event != FileEvent::Written && event != FileEvent::Closed;
}

} // namespace

FilePresentation::FilePresentation(FilePresenter &presenter, Clock &clock)
    : m_presenter(&presenter)
    , m_clock(clock)
    , m_lookTimer(clock.makeTimer([this] { look(); }))
    , m_pollTimer(clock.makeTimer([this] { look(); }))
    , m_expectationTimer(clock.makeTimer([this] { tellExpectedChange(); }))
{
    if (m_watches.descriptor() < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_watches.descriptor(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { look(); });
}

void FilePresentation::begin()
{
    follow(pathOfFileURL(m_presenter->presentedItemURL()));
}

void FilePresentation::end()
{
    m_hasEnded = true;
    m_lookTimer->stop();
    m_pollTimer->stop();
    m_expectationTimer->stop();
    if (m_notifier)
        m_notifier->setEnabled(false);
    m_pin = PinnedFile();
}

void FilePresentation::tellChange()
{
    m_policy.note(FileEvent::Replaced, m_clock.now());
    m_lookTimer->start(std::chrono::milliseconds(0));
}

void FilePresentation::tellChangeOnceUnlocked()
{
    if (!m_hasEnded)
        m_expectationTimer->start(pollInterval);
}

void FilePresentation::tellExpectedChange()
{
    if (isLockedByWriter(m_path))
        tellChangeOnceUnlocked();
    else
        tellChange();
}

bool FilePresentation::mayBeReadWhileLocked()
{
    if (std::exchange(m_isChangeToBeRead, false))
        return true;
    look();
    if (m_hasEnded || m_policy.isQuiet(m_clock.now()))
        return true;
    tellChange();
    return false;
}

void FilePresentation::lookAfterReading()
{
    if (m_isPolling && !m_hasEnded)
        m_lookTimer->start(std::chrono::milliseconds(0));
}

void FilePresentation::lend()
{
    ++m_lentTo;
}

void FilePresentation::takeBack()
{
    --m_lentTo;
    // Looked at from the event loop: who borrowed the file is still at work.
    if (m_lentTo == 0 && !m_hasEnded)
        m_lookTimer->start(std::chrono::milliseconds(0));
}

void FilePresentation::follow(const QByteArray &path)
{
    m_path = path;
    m_isPolling = false;
    m_isFolderMissing = false;
    m_pollTimer->stop();
    // Watched before it is looked at, so that no change falls between the two.
    if (const std::optional<int> systemError = m_watches.watch(m_path))
        poll(*systemError);
    else if (changesUnnoticed(m_path))
        poll(0);
    m_pin = PinnedFile(m_path);
    m_policy = ChangePolicy(sight().state);
}

void FilePresentation::watch()
{
    const std::optional<int> systemError = m_watches.watch(m_path);
    // A folder that is missing may be on its way back; the policy's grace will tell.
    const int error = systemError.value_or(0);
    m_isFolderMissing = error == ENOENT || error == ENOTDIR;
    if (error && !m_isFolderMissing)
        poll(error);
}

void FilePresentation::poll(int systemError)
{
    if (std::exchange(m_isPolling, true))
        return;
    const QString reason =
        systemError ? systemErrorText(systemError) : QStringLiteral("it is on a file system of that kind");
    LogChannel::standard().notice(
        u"The system may not tell of changes to {} ({}), so it is looked at every two seconds",
        {QFile::decodeName(m_path), publicly(reason)});
    m_pollTimer->repeat(pollInterval);
}

FileSighting FilePresentation::sight()
{
    FileSighting seen;
    seen.state = fileStateAt(m_path);
    seen.isLocked = [this] { return isLockedByWriter(m_path); };
    if (seen.state)
        return seen;
    // The file is still where it was: it is a symbolic link, and what it led to has gone.
    const std::optional<QByteArray> whereabouts = m_pin.whereabouts();
    if (!whereabouts || isInTrash(*whereabouts) || m_pin.isAt(m_path))
        return seen;
    seen.whereabouts = whereabouts;
    seen.stateThere = fileStateAt(*whereabouts);
    return seen;
}

void FilePresentation::look()
{
    if (m_hasEnded)
        return;
    // What is told may end this presentation.
    const std::shared_ptr<FilePresentation> self = shared_from_this();
    const std::vector<FileEvent> events = m_watches.takeEvents();
    for (const FileEvent event : events)
        m_policy.note(event, m_clock.now());
    if (m_lentTo > 0)
        return;
    const bool isElsewhere = !m_pin.isAt(m_path);
    if (isElsewhere || m_isFolderMissing || std::any_of(events.begin(), events.end(), concernsNames))
        watch();
    const FileSighting seen = sight();
    if (seen.state && isElsewhere) {
        m_pin = PinnedFile(m_path);
        HeldFile::replacedAt(m_path);
    }
    const Clock::Time now = m_clock.now();
    const ChangePolicy::Verdict verdict = m_policy.look(seen, now);
    if (verdict.lookAgain)
        m_lookTimer->start(*verdict.lookAgain - now);
    else
        m_lookTimer->stop();
    if (verdict.news)
        tell(*verdict.news);
}

void FilePresentation::tell(const FileNews &news)
{
    switch (news.kind) {
    case FileNews::Kind::Changed:
        m_expectationTimer->stop();
        m_isChangeToBeRead = true;
        m_presenter->presentedItemDidChange();
        m_isChangeToBeRead = false;
        break;
    case FileNews::Kind::Moved:
        tellMove(news);
        break;
    case FileNews::Kind::Deleted:
        end();
        m_presenter->accommodatePresentedItemDeletionWithCompletionHandler(
            [](const std::optional<CoordinationError> &) {});
        break;
    }
}

void FilePresentation::tellMove(const FileNews &news)
{
    FilePresenter *const presenter = m_presenter;
    follow(news.path);
    presenter->presentedItemDidMoveToURL(fileURLOfPath(news.path));
    if (!news.changedToo)
        return;
    // By now the presenter may have gone, or have been added anew.
    if (const auto presentation = FilePresentations::instance().of(presenter))
        presentation->tellChange();
}
