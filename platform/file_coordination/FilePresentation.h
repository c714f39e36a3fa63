// SPDX-License-Identifier: MIT
// FilePresentation follows the file of one presenter: it listens and looks, has ChangePolicy decide, and
// tells.
// Thread: main.  Owner: FilePresentations, and itself while it tells.
#pragma once

#include "platform/file_coordination/ChangePolicy.h"
#include "platform/file_coordination/FilePresenter.h"
#include "platform/file_coordination/FileWatches.h"
#include "platform/file_coordination/PinnedFile.h"

#include <QSocketNotifier>

#include <memory>

/// Where the system does not tell of changes, the log gets one line and the file is looked at every two
/// seconds.
class FilePresentation : public std::enable_shared_from_this<FilePresentation> {
public:
    /// How often is looked for what the system does not tell.
    static constexpr std::chrono::milliseconds pollInterval{2000};

    FilePresentation(FilePresenter &presenter, Clock &clock);
    FilePresentation(const FilePresentation &) = delete;
    FilePresentation &operator=(const FilePresentation &) = delete;
    ~FilePresentation() = default;

    /// Follows the presenter's file as it is now; only what happens from here on is told.
    void begin();
    /// Nothing is told any more, not even what has happened already.
    void end();

    /// Looks without waiting for an event; may tell.
    void look();
    /// To be called after the presenter has read the file. Where the system does not tell of changes, the
    /// file is looked at from the event loop: another file may have come to its name, and be renamed next.
    void lookAfterReading();

    /// Tells a change from the event loop, whether one is seen or not; of a locked file once its writer is
    /// quiet.
    void tellChange();
    /// The same only once no writer holds a lock on the file. Nothing tells of the end of a lock, so it is
    /// looked for as often as in pollInterval.
    void tellChangeOnceUnlocked();

    /// For a reader that finds the file locked: whether its writer has been quiet for long enough. If not, a
    /// change is told once it has, or has unlocked the file.
    bool mayBeReadWhileLocked();

    // While it is lent, news wait.
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
    void tell(const FileNews &news);
    void tellMove(const FileNews &news);
    void tellExpectedChange();

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
    bool m_isFolderMissing = false; // so that not everything is watched
    bool m_isChangeToBeRead = false; // it has just been told
    int m_lentTo = 0; // how many
};
