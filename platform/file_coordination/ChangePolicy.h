// SPDX-License-Identifier: MIT
// ChangePolicy decides what the events at a file and looks at its path amount to: one change, a move, a
// deletion or nothing yet. It asks the system for nothing; who uses it reports what happens and looks when
// told to. Thread: any; a value.
#pragma once

#include "platform/file_coordination/FileEvent.h"
#include "platform/file_coordination/FileState.h"
#include "platform/system/Clock.h"

#include <functional>
#include <optional>

/// What a look at the path of a file has found.
struct FileSighting {
    std::optional<FileState> state; ///< of what the path names now; absent: nothing
    /// Where nothing is at the path: where the file last seen there is now; absent: deleted or thrown away.
    std::optional<QByteArray> whereabouts;
    std::optional<FileState> stateThere;
    /// Whether a writer has locked the file; asked only before a change is told. Empty: not locked.
    std::function<bool()> isLocked;
};

struct FileNews {
    enum class Kind { Changed, Moved, Deleted };

    Kind kind;
    QByteArray path; ///< of a move: to where
    bool changedToo = false; ///< of a move: whether the contents have changed besides
};

/// The path decides first: whatever is at it is the document, as programs save by putting another file there.
/// Only once it has been empty for the grace, the file that was there last is looked for.
class ChangePolicy {
public:
    /// How long a writer that has not finished must have been quiet.
    static constexpr Clock::Time quiet{150};
    /// How long a name may be missing while a program puts another file under it.
    static constexpr Clock::Time grace{500};
    /// The least time between the news of two changes: those of a burst become one.
    static constexpr Clock::Time burst{100};
    /// When a change is told although its writer never pauses.
    static constexpr Clock::Time maxDelay{2000};
    /// How long the writer of a locked file must have been quiet. Some programs keep their lock for as long
    /// as they show the document, so a lock only delays a change.
    static constexpr Clock::Time lockTimeout{300};
    /// When a change is told although the writer that has locked the file never pauses.
    static constexpr Clock::Time maxLockDelay{10'000};

    struct Verdict {
        std::optional<FileNews> news;
        std::optional<Clock::Time> lookAgain; ///< a time of the clock
    };

    ChangePolicy() = default;
    /// known: the state of the file at the start; absent: there is none yet.
    explicit ChangePolicy(const std::optional<FileState> &known);

    void note(FileEvent event, Clock::Time now);
    /// To be asked after events and at the time that the last verdict named. After a move or a deletion
    /// there is nothing more to be asked.
    Verdict look(const FileSighting &seen, Clock::Time now);
    /// Whether nothing has happened to the file for as long as lockTimeout, and all that happened before is
    /// told.
    [[nodiscard]] bool isQuiet(Clock::Time now) const;

private:
    Verdict lookAtNothing(const FileSighting &seen, Clock::Time now);

    std::optional<FileState> m_known; // as of the last news
    std::optional<FileState> m_lastSeen;
    bool m_isWritten = false; // since the last news
    bool m_isFinished = false; // the last event says that the writer has finished
    Clock::Time m_lastActivity{};
    std::optional<Clock::Time> m_missingSince;
    std::optional<Clock::Time> m_changedSince;
    std::optional<Clock::Time> m_lastTold;
};
