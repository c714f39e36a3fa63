// SPDX-License-Identifier: MIT
#include "platform/file_coordination/FilePresentation.h"

#include "platform/logging/LogChannel.h"
#include "platform/system/FileURL.h"
#include "platform/system/SystemError.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace {

/// Whether other files and folders may have to be watched now.
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
    , m_expectationTimer(clock.makeTimer([this] { reportExpectedChange(); }))
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

void FilePresentation::reportChange()
{
    m_policy.note(FileEvent::Replaced, m_clock.now());
    m_lookTimer->start(std::chrono::milliseconds(0));
}

void FilePresentation::reportChangeOnceUnlocked()
{
    if (!m_hasEnded)
        m_expectationTimer->start(pollInterval);
}

void FilePresentation::reportExpectedChange()
{
    if (isLockedByWriter(m_path))
        reportChangeOnceUnlocked();
    else
        reportChange();
}

bool FilePresentation::mayBeReadWhileLocked()
{
    if (std::exchange(m_isChangeToBeRead, false))
        return true;
    look();
    if (m_hasEnded || m_policy.isQuiet(m_clock.now()))
        return true;
    reportChange();
    return false;
}

void FilePresentation::lookAfterReading()
{
    if (m_isPolling && !m_hasEnded)
        m_lookTimer->start(std::chrono::milliseconds(0));
}

void FilePresentation::lend()
{
    ++m_lentCount;
}

void FilePresentation::takeBack()
{
    --m_lentCount;
    // From the event loop: the borrower is still at work.
    if (m_lentCount == 0 && !m_hasEnded)
        m_lookTimer->start(std::chrono::milliseconds(0));
}

void FilePresentation::follow(const QByteArray &path)
{
    m_path = path;
    m_isPolling = false;
    m_isFolderMissing = false;
    m_pollTimer->stop();
    // Watched before it is looked at, so that no change is missed between the two.
    if (const std::optional<int> systemError = m_watches.watch(m_path))
        poll(*systemError);
    else if (mayChangeUnnoticed(m_path))
        poll(0);
    m_pin = PinnedFile(m_path);
    m_policy = ChangePolicy(sight().state);
}

void FilePresentation::watch()
{
    const std::optional<int> systemError = m_watches.watch(m_path);
    // A missing folder may come back within the grace period.
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
        systemError ? systemErrorText(systemError) : QStringLiteral("unreliable file system");
    LogChannel::standard().notice(u"Cannot rely on change events for {} ({}); checking it every two seconds",
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
    // If the pinned file is still there, it is a symbolic link whose target is missing.
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
    // The presenter may end this presentation.
    const std::shared_ptr<FilePresentation> self = shared_from_this();
    const std::vector<FileEvent> events = m_watches.takeEvents();
    for (const FileEvent event : events)
        m_policy.note(event, m_clock.now());
    if (m_lentCount > 0)
        return;
    const bool isElsewhere = !m_pin.isAt(m_path);
    if (isElsewhere || m_isFolderMissing || std::any_of(events.begin(), events.end(), concernsNames))
        watch();
    const FileSighting seen = sight();
    if (seen.state && isElsewhere) {
        m_pin.replaceBy(PinnedFile(m_path));
        HeldFile::replaceAt(m_path);
    }
    const Clock::Time now = m_clock.now();
    const ChangePolicy::Verdict verdict = m_policy.look(seen, now);
    if (verdict.lookAgain)
        m_lookTimer->start(*verdict.lookAgain - now);
    else
        m_lookTimer->stop();
    if (verdict.news)
        report(*verdict.news);
}

void FilePresentation::report(const FileNews &news)
{
    switch (news.kind) {
    case FileNews::Kind::Changed:
        m_expectationTimer->stop();
        m_isChangeToBeRead = true;
        m_presenter->presentedItemDidChange();
        m_isChangeToBeRead = false;
        break;
    case FileNews::Kind::Moved:
        reportMove(news);
        break;
    case FileNews::Kind::Deleted:
        end();
        m_presenter->accommodatePresentedItemDeletionWithCompletionHandler(
            [](const std::optional<CoordinationError> &) {});
        break;
    }
}

void FilePresentation::reportMove(const FileNews &news)
{
    FilePresenter *const presenter = m_presenter;
    follow(news.path);
    presenter->presentedItemDidMoveToURL(fileURLOfPath(news.path));
    if (!news.hasChangedToo)
        return;
    // The presenter may have been removed, or added again, in the call.
    if (const auto presentation = FilePresentations::instance().of(presenter))
        presentation->reportChange();
}

FilePresentations &FilePresentations::instance()
{
    // Never destroyed: presenters that are static objects remove themselves when the process exits.
    static auto *const presentations = new FilePresentations;
    return *presentations;
}

void FilePresentations::add(FilePresenter &presenter, Clock &clock)
{
    if (of(&presenter))
        return;
    m_presentations.push_back(std::make_shared<FilePresentation>(presenter, clock));
    m_presentations.back()->begin();
}

void FilePresentations::remove(const FilePresenter *presenter)
{
    const auto found = std::find_if(m_presentations.begin(), m_presentations.end(),
        [&](const auto &presentation) { return presentation->presenter() == presenter; });
    if (found == m_presentations.end())
        return;
    (*found)->end();
    m_presentations.erase(found);
}

std::shared_ptr<FilePresentation> FilePresentations::of(const FilePresenter *presenter) const
{
    for (const std::shared_ptr<FilePresentation> &presentation : m_presentations) {
        if (presentation->presenter() == presenter)
            return presentation;
    }
    return nullptr;
}

std::vector<std::shared_ptr<FilePresentation>> FilePresentations::at(const QByteArray &path) const
{
    std::vector<std::shared_ptr<FilePresentation>> found;
    for (const std::shared_ptr<FilePresentation> &presentation : m_presentations) {
        if (!presentation->hasEnded() && presentation->path() == path)
            found.push_back(presentation);
    }
    return found;
}
