// SPDX-License-Identifier: MIT
// HistoryTable has the counts of the documents in the order in which they were recorded. Which documents
// there are, and the transactions, are left to ProgressStore.
// Thread: that of the store.  Owner: ProgressStore; used only while the file is read or written.
#pragma once

#include "platform/database/DatabaseFile.h"
#include "writing_progress/DayTotal.h"

/// One row a minute at most for each document, and one a day after a year. The first row of a document stays
/// what it is: it says how long the document was when its history began.
class HistoryTable {
public:
    using Failure = DatabaseFile::Failure;

    explicit HistoryTable(const DatabaseFile &file)
        : m_file(file)
    {
    }

    static QByteArray schema();

    /// count: newer than what is recorded; does nothing if the last row has the same counts.
    Failure append(qint64 document, const RecordedCount &count) const;

    /// The last row of the document; absent if it has none.
    Failure readLast(qint64 document, std::optional<RecordedCount> &last) const;

    /// The row with which the day began, then those of the day.
    Failure readDay(qint64 document, QDate day, std::vector<RecordedCount> &counts) const;

    /// All rows.
    Failure readAll(qint64 document, std::vector<RecordedCount> &counts) const;

    /// Keeps the last row of each day before this one.
    Failure thinBefore(qint64 document, QDate day) const;
    /// Keeps the last row of all before this day.
    Failure forgetBefore(qint64 document, QDate day) const;
    Failure forget(qint64 document) const;

    /// If the file has used up most of its bound: thins all documents to days, and removes the older half of
    /// the days if that is not enough.
    Failure makeRoom(qint64 maxFileSize, QDate today) const;

private:
    struct Place {
        qint64 sequence = 0; ///< of the last row; 0: there is none
        std::optional<RecordedCount> last = {};
    };

    Failure find(qint64 document, Place &place) const;
    Failure read(DatabaseStatement &statement, std::vector<RecordedCount> &counts) const;
    Failure readUsedSize(qint64 &size) const;

    const DatabaseFile &m_file;
};
