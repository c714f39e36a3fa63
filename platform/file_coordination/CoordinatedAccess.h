// SPDX-License-Identifier: MIT
// CoordinatedAccess is what one coordinator does: it waits for its turn, calls the accessor and looks whether
// the file stayed the same. Thread: main.  Owner: FileCoordinator, and an access under way, which the
// coordinator may not outlive.
#pragma once

#include "platform/file_coordination/FileCoordinator.h"
#include "platform/file_coordination/FileState.h"
#include "platform/file_coordination/Relinquishment.h"
#include "platform/system/Clock.h"

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
    bool triesAgain();

    /// The access under way ends without calling its accessor again.
    void abandon() { m_isAbandoned = true; }

private:
    /// One read of readInTurn().
    struct Read {
        QByteArray path;
        std::optional<FileState> before;
        std::optional<Clock::Time> failingSince;
        bool isWaitedFor = false; ///< the name was missing, and stayed so
        bool isToBeRepeated = false;
        bool isLeftToWriter = false; ///< no document could be made of a locked file
    };
    enum class Obstacle { None, Missing, Empty, Lock };

    std::optional<CoordinationError> readInTurn(
        const QUrl &url, const QByteArray &path, const FileCoordinator::Accessor &accessor);
    Obstacle waitForTurn(const QByteArray &path);
    [[nodiscard]] Obstacle obstacleAt(const QByteArray &path, const std::optional<FileState> &state) const;
    [[nodiscard]] bool isToEndUnread(Obstacle obstacle) const;
    static std::chrono::milliseconds timeoutFor(Obstacle obstacle);
    bool waitFor(const Relinquishment &relinquishment);
    [[nodiscard]] std::shared_ptr<FilePresentation> presentation() const;

    const FilePresenter *m_presenter; // perhaps gone; only to tell it from others
    Clock &m_clock;
    bool m_isUnderWay = false;
    bool m_isAbandoned = false;
    bool m_wasEmpty = false; // and stayed so
    Read m_read;
};
