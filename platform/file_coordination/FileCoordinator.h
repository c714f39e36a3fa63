// SPDX-License-Identifier: MIT
// FileCoordinator gives readers and writers access to a file in turn: the presenters of this process
// relinquish it meanwhile, and readers wait for writers of other processes that hold a lock on it. Presenters
// register here.
// Thread: main.  Owner: anyone; destroying it during an access ends the access.
#pragma once

#include "platform/file_coordination/FilePresenter.h"
#include "platform/system/Clock.h"

#include <memory>

class CoordinatedAccess;

class FileCoordinator {
public:
    using Accessor = std::function<void(const QUrl &newURL)>;

    /// The maximum wait for a presenter that does not relinquish the file.
    static constexpr std::chrono::milliseconds timeout{2000};

    /// From now on the presenter learns what happens to its file.
    static void addFilePresenter(FilePresenter *presenter, Clock &clock = systemClock());
    /// Reports nothing to it any more, not even what has happened already. Harmless if it was not added.
    static void removeFilePresenter(const FilePresenter *presenter);

    /// Reports a change to the presenter once more, from the event loop, because it could not use the last
    /// report. Does nothing if the presenter was not added.
    static void reportChangeAgain(const FilePresenter *presenter);

    /// filePresenter: the presenter on whose behalf the file is accessed; it is not asked to relinquish it.
    explicit FileCoordinator(const FilePresenter *filePresenter = nullptr, Clock &clock = systemClock());
    FileCoordinator(const FileCoordinator &) = delete;
    FileCoordinator &operator=(const FileCoordinator &) = delete;
    ~FileCoordinator();

    // Both call the accessor, or return an error, before they return. While they wait, the event loop of the
    // main thread runs; a call from there, or from the accessor, does nothing.

    /// Waits a moment for a file that is missing or was just emptied, as happens while programs save. Calls
    /// the accessor again if the file changed during the call. The writer of a locked file must have been
    /// quiet for ChangePolicy::lockTimeout: a coordinator without a presenter waits for that, at most ten
    /// seconds; with a presenter, it returns without reading, and the presenter learns of a change at that
    /// time.
    [[nodiscard]] std::optional<CoordinationError> coordinateReadingItemAtURL(
        const QUrl &url, const Accessor &byAccessor);

    /// For an accessor that could not read a document: whether it will be called again in a moment, because
    /// the file may be half saved. False if there is no file, or after half a second of retries. True also
    /// for a file that is locked then: the access ends with an error, and a change is reported once the file
    /// is unlocked.
    [[nodiscard]] bool willRetry();

    /// Does not wait for locks: the writer takes its own.
    [[nodiscard]] std::optional<CoordinationError> coordinateWritingItemAtURL(
        const QUrl &url, const Accessor &byAccessor);

private:
    std::shared_ptr<CoordinatedAccess> m_access; // never null
};
