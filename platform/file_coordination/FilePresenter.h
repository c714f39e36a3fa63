// SPDX-License-Identifier: MIT
// FilePresenter is the interface of an object that shows a file and must know what others do with it.
// ChangePolicy decides what is reported, and when.
// Thread: main.  Owner: anyone; FileCoordinator refers to it from addFilePresenter() until
// removeFilePresenter() or its destruction.
#pragma once

#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

/// Why a coordinated access was not granted.
struct CoordinationError {
    enum class Cause {
        LockedByWriter, ///< another program holds a writer's lock on the file
        NotRelinquished, ///< a presenter of the file in this process does not relinquish it
    };

    Cause cause;

    bool operator==(const CoordinationError &) const = default;
};

/// The cause in English, on one line and without the name of the file.
QString causeText(const CoordinationError &error);

/// The operations are called on the main thread, by the event loop or during a coordinated access of other
/// code in this process. A presenter may remove itself, or add itself again, in any of them.
class FilePresenter {
public:
    using CompletionHandler = std::function<void(const std::optional<CoordinationError> &)>;
    using Reacquirer = std::function<void()>;
    /// The reacquirer is called when the other access has finished.
    using Block = std::function<void(const Reacquirer &reacquirer)>;

    FilePresenter() = default;
    FilePresenter(const FilePresenter &) = delete;
    FilePresenter &operator=(const FilePresenter &) = delete;
    virtual ~FilePresenter();

    /// A file: URL. Read when the presenter is added; after a move, a presenter that is still added presents
    /// the new URL.
    [[nodiscard]] virtual QUrl presentedItemURL() const = 0;

    /// The contents may have changed since the last call or the start. Not called while the file is
    /// relinquished, but afterwards.
    virtual void presentedItemDidChange() = 0;
    virtual void presentedItemDidMoveToURL(const QUrl &newURL) = 0;
    /// The file was deleted or moved to the trash. This is the last call, even if a file of that name appears
    /// again.
    virtual void accommodatePresentedItemDeletionWithCompletionHandler(
        const CompletionHandler &completionHandler) = 0;
    // Other code in this process wants to read or write the file, and waits until the block is called.
    virtual void relinquishPresentedItemToReader(const Block &reader) = 0;
    virtual void relinquishPresentedItemToWriter(const Block &writer) = 0;
};
