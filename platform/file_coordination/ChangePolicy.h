// SPDX-License-Identifier: MIT
// ChangePolicy decides what the events of a file and the states found at its path mean: a change, a move, a
// deletion or nothing yet. It makes no system calls; its user passes it the events and looks at the path when
// asked to.
// Thread: any; a value.
#pragma once

#include "platform/file_coordination/FileState.h"
#include "platform/system/Clock.h"

#include <functional>
#include <optional>

/// What the system reports about a file or its name.
enum class FileEvent {
    Written, ///< contents or size changed
    Closed, ///< closed by a process that could write to it
    Replaced, ///< another file was moved to the name; its contents are complete
    Created, ///< a file appeared under the name, perhaps still without its contents
    Gone, ///< the name disappeared
    FolderMoved, ///< a folder of the path was moved, or a symbolic link in it changed
    Unknown, ///< events were lost
};

/// What was found at the path of a file.
struct FileSighting {
    std::optional<FileState> state; ///< of what the path names now; absent: nothing
    /// If nothing is at the path: where the file last seen there is now; absent: deleted or in the trash.
    std::optional<QByteArray> whereabouts;
    std::optional<FileState> stateThere;
    /// Whether a writer has locked the file; called only before a change is reported. Empty: not locked.
    std::function<bool()> isLocked;
};

struct FileNews {
    enum class Kind { Changed, Moved, Deleted };

    Kind kind;
    QByteArray path; ///< of a move: the new path
    bool hasChangedToo = false; ///< of a move: whether the contents changed as well
};

/// The path decides: whatever is there is the document, since programs save by putting another file there.
/// The file that was there last is looked for only after nothing has been at the path for the grace period.
class ChangePolicy {
public:
    /// How long a writer that has not finished must be quiet before a change is reported.
    static constexpr Clock::Time quiet{150};
    /// How long a name may be missing while a program puts another file under it.
    static constexpr Clock::Time grace{500};
    /// The minimum time between two reports: the changes of a burst are reported as one.
    static constexpr Clock::Time burst{100};
    /// When a change is reported although its writer never pauses.
    static constexpr Clock::Time maxDelay{2000};
    /// How long the writer of a locked file must be quiet. Some programs keep their lock as long as they show
    /// the document, so a lock only delays a change.
    static constexpr Clock::Time lockTimeout{300};
    /// When a change of a locked file is reported although its writer never pauses.
    static constexpr Clock::Time maxLockDelay{10'000};

    struct Verdict {
        std::optional<FileNews> news;
        std::optional<Clock::Time> lookAgain; ///< a time of the clock
    };

    ChangePolicy() = default;
    /// known: the state of the file at the start; absent: there is no file yet.
    explicit ChangePolicy(const std::optional<FileState> &known);

    void note(FileEvent event, Clock::Time now);
    /// To be called after events and at the time of the last verdict; not after a move or a deletion.
    Verdict look(const FileSighting &seen, Clock::Time now);
    /// Whether nothing has happened to the file for lockTimeout, and everything before was reported.
    [[nodiscard]] bool isQuiet(Clock::Time now) const;

private:
    Verdict lookWithoutFile(const FileSighting &seen, Clock::Time now);

    std::optional<FileState> m_known; // at the last report
    std::optional<FileState> m_lastSeen;
    bool m_isWritten = false; // since the last report
    bool m_isFinished = false; // according to the last event
    Clock::Time m_lastActivity{};
    std::optional<Clock::Time> m_missingSince;
    std::optional<Clock::Time> m_changedSince;
    std::optional<Clock::Time> m_lastReport;
};
