// SPDX-License-Identifier: MIT
// FilePresenter is whoever shows a file and wants to know what others do with it. What is told, and when,
// ChangePolicy decides. Thread: main.  Owner: anyone; FileCoordinator refers to it from addFilePresenter() to
// removeFilePresenter() or the end of its life.
#pragma once

#include "platform/file_coordination/CoordinationError.h"

#include <QUrl>

#include <functional>
#include <optional>

/// Called on the main thread, from the event loop or from inside the coordinated access of another one in
/// this process. A presenter may remove itself, or add itself again, in any of them.
class FilePresenter {
public:
    using CompletionHandler = std::function<void(const std::optional<CoordinationError> &)>;
    using Reacquirer = std::function<void()>;
    /// The reacquirer is called once the other one has finished.
    using Block = std::function<void(const Reacquirer &reacquirer)>;

    FilePresenter() = default;
    FilePresenter(const FilePresenter &) = delete;
    FilePresenter &operator=(const FilePresenter &) = delete;
    virtual ~FilePresenter();

    /// A file: URL. Asked when the presenter is added; a presenter that stays added through a move is taken
    /// to present the new URL from then on.
    [[nodiscard]] virtual QUrl presentedItemURL() const = 0;

    /// The contents may be others than at the last message, or than at the start. Not told while the file is
    /// relinquished, but afterwards.
    virtual void presentedItemDidChange() = 0;
    virtual void presentedItemDidMoveToURL(const QUrl &newURL) = 0;
    /// The file has gone, or into the trash. Nothing more is told, even if a file of that name comes back.
    virtual void accommodatePresentedItemDeletionWithCompletionHandler(
        const CompletionHandler &completionHandler) = 0;
    // Another one in this process wants to read or write the file, and waits for the block to be called.
    virtual void relinquishPresentedItemToReader(const Block &reader) = 0;
    virtual void relinquishPresentedItemToWriter(const Block &writer) = 0;
};
