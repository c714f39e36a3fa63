// SPDX-License-Identifier: MIT
// CoordinatedAccess does the work of one FileCoordinator: it waits for its turn, calls the accessor and
// checks whether the file stayed the same.
// Thread: main.  Owner: FileCoordinator, and a running access, during which the coordinator may be destroyed.
#pragma once

#include "platform/file_coordination/FileCoordinator.h"
#include "platform/file_coordination/FilePresentation.h"
#include "platform/file_coordination/FileState.h"
#include "platform/system/Clock.h"

#include <memory>
#include <vector>

/// The time for which the presenters of a file relinquish it to other code of this process; ends with this
/// object.
class Relinquishment {
public:
    enum class Party { Reader, Writer };

    /// Asks all presenters of the file but one. path: as in their URLs.
    Relinquishment(const QByteArray &path, Party party, const FilePresenter *except);
    Relinquishment(const Relinquishment &) = delete;
    Relinquishment &operator=(const Relinquishment &) = delete;
    ~Relinquishment();

    /// Whether all presenters have called the block.
    [[nodiscard]] bool isComplete() const;

private:
    struct Answers {
        size_t count = 0;
        bool isOver = false;
        std::vector<FilePresenter::Reacquirer> reacquirers;
    };

    std::vector<std::shared_ptr<FilePresentation>> m_presentations;
    std::shared_ptr<Answers> m_answers = std::make_shared<Answers>(); // a block may be called late
};

class CoordinatedAccess {
public:
    CoordinatedAccess(const FilePresenter *presenter, Clock &clock)
        : m_presenter(presenter)
        , m_clock(clock)
    {
    }

    std::optional<CoordinationError> read(const QUrl &url, const FileCoordinator::Accessor &accessor);
    std::optional<CoordinationError> write(const QUrl &url, const FileCoordinator::Accessor &accessor);

    /// See FileCoordinator.
    bool willRetry();

    /// Ends the running access without calling its accessor again.
    void abandon() { m_isAbandoned = true; }

private:
    /// One read of readInTurn().
    struct Read {
        QByteArray path;
        std::optional<FileState> before;
        std::optional<Clock::Time> failingSince;
        bool hasWaitedForFile = false; ///< the name was missing, and still was after the wait
        bool mustRepeat = false;
        bool isLeftToWriter = false; ///< a locked file has no readable document
    };
    enum class Obstacle { None, Missing, Empty, Lock };

    std::optional<CoordinationError> readInTurn(
        const QUrl &url, const QByteArray &path, const FileCoordinator::Accessor &accessor);
    Obstacle waitForTurn(const QByteArray &path);
    [[nodiscard]] Obstacle obstacleAt(const QByteArray &path, const std::optional<FileState> &state) const;
    [[nodiscard]] bool mustEndUnread(Obstacle obstacle) const;
    static std::chrono::milliseconds timeoutFor(Obstacle obstacle);
    bool waitFor(const Relinquishment &relinquishment);
    [[nodiscard]] std::shared_ptr<FilePresentation> presentation() const;

    const FilePresenter *m_presenter; // may be dangling: only compared
    Clock &m_clock;
    bool m_isRunning = false;
    bool m_isAbandoned = false;
    bool m_wasEmpty = false; // at the last read
    Read m_read;
};
