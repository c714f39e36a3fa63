// SPDX-License-Identifier: MIT
// ProgressStore is the database of the documents that a user keeps an eye on: their order, goals and limits,
// and their counts after each save. It keeps nothing of their texts. Counting is left to others.
// Thread: any, one at a time.  Owner: anyone; several objects and processes may have the database open.
#pragma once

#include "platform/database/DatabaseFile.h"
#include "writing_progress/HistoryTable.h"
#include "writing_progress/PlanTable.h"

#include <QByteArrayList>

#include <chrono>
#include <map>
#include <optional>
#include <vector>

struct ListedDocument {
    qint64 identifier = 0; ///< in the database
    QByteArray path;
    /// What its recorder has seen of the file and the rules at the last count; empty if nothing.
    QByteArray stamp;
};

/// A document that has just been counted.
struct DocumentCount {
    QByteArray path;
    QBYWordCounterStats stats;
    QDateTime saved = {}; ///< when the file was modified; invalid if that is not known
    QByteArray stamp = {};
};

/// The folder of a document, which can have a goal for all documents directly in it.
QByteArray folderOf(const QByteArray &path);

/// The database is "quillbay/com.quillbay.Documents.sqlite3" in the user's configuration folder. It is opened
/// at the first access; reading creates neither file nor folder, and what is missing reads as empty. A broken
/// file is put aside with a line in the log, and a new one begun. Paths are absolute and bytes in any
/// encoding.
class ProgressStore {
public:
    using Failure = DatabaseFile::Failure;
    template <typename Value>
    using Answer = Result<Value, DatabaseFault>;
    using Plans = PlanTable::Plans;

    static constexpr std::size_t maxDocuments = 10'000;
    static constexpr qint64 maxFileSize = 256 << 20; ///< bytes
    static constexpr std::chrono::milliseconds defaultTimeout{5000};

    /// timeout: the maximum wait for other processes. maxSize: at most maxFileSize.
    explicit ProgressStore(std::chrono::milliseconds timeout = defaultTimeout, qint64 maxSize = maxFileSize);

    [[nodiscard]] const QByteArray &path() const { return m_file.path(); }
    /// The name under which this object has put a broken file aside; empty if it has not.
    [[nodiscard]] const QByteArray &brokenFile() const { return m_brokenFile; }

    /// In the user's order.
    Answer<std::vector<ListedDocument>> documents();
    /// At the end of the list; those that are there stay where they are. The number of those that were added,
    /// which is smaller if the list is full.
    Answer<int> add(const QByteArrayList &paths);
    /// Forgets all about the documents.
    Failure remove(const QByteArrayList &paths);
    Failure setOrder(const QByteArrayList &paths);
    /// The document has a new path. Forgets another one that had it before.
    Failure move(const QByteArray &from, const QByteArray &to);

    /// By the path of the document or folder.
    Answer<Plans> plans();
    /// An empty plan removes the path's.
    Failure setPlan(const QByteArray &path, const Plan &plan);

    /// Records a count of a document in the list, unless it is the one that was recorded last; does nothing
    /// for others. now: the local time. A save that is newer than the last count, and not in the future,
    /// counts for its own day.
    Answer<std::vector<Milestone>> record(const DocumentCount &count, const QDateTime &now);
    /// The same for several, all or none of which are on disk afterwards.
    Answer<std::vector<Milestone>> recordAll(const std::vector<DocumentCount> &counts, const QDateTime &now);

    /// The counts of a document, in the order in which they were recorded.
    Answer<std::vector<RecordedCount>> history(const QByteArray &path);
    /// The totals of a day, by the identifier of the document; none for those without a count.
    Answer<std::map<qint64, DayTotal>> totalsOfDay(QDate day);
    /// The same of one document; absent without a count.
    Answer<std::optional<DayTotal>> totalOfDay(const QByteArray &path, QDate day);
    /// Leaves the last count of each document.
    Failure forgetHistory(const QByteArrayList &paths);

    /// On at first. Off: what is older than a day is forgotten with the next count.
    Answer<bool> keepsHistory();
    Failure setKeepsHistory(bool keeps);

private:
    /// reading: may be called twice.
    Failure read(const std::function<Failure()> &reading);
    Failure write(const std::function<Failure()> &writing);
    Failure forEach(const QByteArrayList &paths, const char *statement);
    Failure find(const QByteArray &path, ListedDocument &document);
    Failure readDocuments(std::vector<ListedDocument> &documents);
    Failure readKeepsHistory(bool &keeps);
    Failure readTotal(qint64 document, QDate day, DayTotal &total);
    Failure recordFor(const ListedDocument &document, const DocumentCount &count, const QDateTime &now,
        std::vector<Milestone> &milestones);
    Failure noteMilestonesOfFolder(const QByteArray &folder, QDate day, std::vector<Milestone> &milestones);

    const std::chrono::milliseconds m_timeout;
    const qint64 m_maxSize;
    DatabaseFile m_file;
    PlanTable m_plans;
    HistoryTable m_history;
    QByteArray m_brokenFile;
};
