// SPDX-License-Identifier: MIT
// FilePresentation follows the file of one presenter: it receives events, looks at the path, lets
// ChangePolicy decide, and calls the presenter. FilePresentations has those of all presenters of the process.
// Thread: main.  Owner: FilePresentations, and itself while it calls the presenter.
#pragma once

#include "platform/file_coordination/ChangePolicy.h"
#include "platform/file_coordination/FilePresenter.h"
#include "platform/file_coordination/FileWatches.h"
#include "platform/file_coordination/HeldFiles.h"

#include <QSocketNotifier>

#include <memory>
#include <vector>

/// If the system has no reliable events for the file, the log gets one line and the file is checked every two
/// seconds.
class FilePresentation : public std::enable_shared_from_this<FilePresentation> {
public:
    /// How often a file without reliable events is checked.
    static constexpr std::chrono::milliseconds pollInterval{2000};

    FilePresentation(FilePresenter &presenter, Clock &clock);
    FilePresentation(const FilePresentation &) = delete;
    FilePresentation &operator=(const FilePresentation &) = delete;
    ~FilePresentation() = default;

    /// Follows the presenter's file as it is now; reports only what happens from here on.
    void begin();
    /// Reports nothing any more, not even what has happened already.
    void end();

    /// Checks the file without waiting for an event; may call the presenter.
    void look();
    /// To be called after the presenter has read the file. A file without reliable events is checked by the
    /// event loop then: another file may have appeared under its name, and be renamed next.
    void lookAfterReading();

    /// Reports a change from the event loop, even if there is none; of a locked file once its writer is
    /// quiet.
    void reportChange();
    /// The same, once no writer holds a lock on the file. There is no event for the end of a lock, so it is
    /// checked every pollInterval.
    void reportChangeOnceUnlocked();

    /// For a reader that finds the file locked: whether its writer has been quiet for long enough. If not, a
    /// change is reported once it has, or has unlocked the file.
    bool mayBeReadWhileLocked();

    // While the file is lent, nothing is reported.
    void lend();
    void takeBack();

    [[nodiscard]] FilePresenter *presenter() const { return m_presenter; }
    [[nodiscard]] bool hasEnded() const { return m_hasEnded; }
    [[nodiscard]] const QByteArray &path() const { return m_path; }

private:
    void follow(const QByteArray &path);
    void watch();
    void poll(int systemError);
    [[nodiscard]] FileSighting sight();
    void report(const FileNews &news);
    void reportMove(const FileNews &news);
    void reportExpectedChange();

    FilePresenter *m_presenter;
    bool m_hasEnded = false;
    Clock &m_clock;
    QByteArray m_path;
    FileWatches m_watches;
    std::unique_ptr<QSocketNotifier> m_notifier;
    PinnedFile m_pin;
    ChangePolicy m_policy;
    std::unique_ptr<ClockTimer> m_lookTimer;
    std::unique_ptr<ClockTimer> m_pollTimer;
    std::unique_ptr<ClockTimer> m_expectationTimer;
    bool m_isPolling = false;
    bool m_isFolderMissing = false; // so not everything is watched
    bool m_isChangeToBeRead = false; // it was just reported
    int m_lentCount = 0;
};

/// The presentations of this process. Owned by the process.
class FilePresentations {
public:
    static FilePresentations &instance();

    /// Does nothing for a presenter that was added before.
    void add(FilePresenter &presenter, Clock &clock);
    void remove(const FilePresenter *presenter);

    /// Null for a presenter that is not added.
    [[nodiscard]] std::shared_ptr<FilePresentation> of(const FilePresenter *presenter) const;
    /// Those of the file at this path.
    [[nodiscard]] std::vector<std::shared_ptr<FilePresentation>> at(const QByteArray &path) const;

private:
    std::vector<std::shared_ptr<FilePresentation>> m_presentations;
};
