// SPDX-License-Identifier: MIT
// FileCoordinator lets a reader or a writer have a file in turn: with the presenters of this process, who
// give it up meanwhile, and after the writers of other processes that hold a lock on it. It is also where
// presenters sign on and off. Thread: main.  Owner: anyone; one that goes in the midst of an access ends the
// access.
#pragma once

#include "platform/file_coordination/FilePresenter.h"
#include "platform/system/Clock.h"

#include <memory>

class CoordinatedAccess;

class FileCoordinator {
public:
    using Accessor = std::function<void(const QUrl &newURL)>;

    /// How long an access waits at most for a presenter that keeps the file.
    static constexpr std::chrono::milliseconds timeout{2000};

    /// From now on the presenter is told of what happens to its file.
    static void addFilePresenter(FilePresenter *presenter, Clock &clock = systemClock());
    /// Nothing is told any more, not even what has happened already. Harmless for one that is not there.
    static void removeFilePresenter(const FilePresenter *presenter);

    /// Tells the presenter of a change once more, from the event loop: it could make nothing of the last one.
    /// Nothing for one that is not there.
    static void tellChangeAgain(const FilePresenter *presenter);

    /// filePresenter: the presenter on whose behalf the file is accessed; it is not asked to give it up.
    explicit FileCoordinator(const FilePresenter *filePresenter = nullptr, Clock &clock = systemClock());
    FileCoordinator(const FileCoordinator &) = delete;
    FileCoordinator &operator=(const FileCoordinator &) = delete;
    ~FileCoordinator();

    // Both call the accessor, or report why not, before they return, and serve the main thread's events while
    // they wait; called from such an event, or from the accessor, they leave it to the access under way.

    /// Waits a moment for a file that is missing or has just been emptied, as happens while programs save.
    /// The accessor is called again where the file has changed while it read. The writer of a locked file
    /// must have been quiet for ChangePolicy::lockTimeout. A coordinator without a presenter waits for that,
    /// ten seconds at most. For a presenter nothing is read or reported; it is told of a change at that time.
    [[nodiscard]] std::optional<CoordinationError> coordinateReadingItemAtURL(
        const QUrl &url, const Accessor &byAccessor);

    /// For the accessor of a read that could make no document of it: whether it will be called again a moment
    /// later, as the file may be half saved. Not where there is no file, nor after half a second of that. If
    /// the file is locked then, also true: the read ends with an error, and a change is told once the file is
    /// unlocked.
    [[nodiscard]] bool triesAgain();

    /// Does not wait for locks: the writer takes its own.
    [[nodiscard]] std::optional<CoordinationError> coordinateWritingItemAtURL(
        const QUrl &url, const Accessor &byAccessor);

private:
    std::shared_ptr<CoordinatedAccess> m_access; // never null
};
