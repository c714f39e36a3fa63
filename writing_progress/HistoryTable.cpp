// SPDX-License-Identifier: MIT
#include "writing_progress/HistoryTable.h"

#include <QStringList>

namespace {

constexpr int secondsOfMinute = 60;
constexpr int firstCountColumn = 2;

/// The columns have the names that statistics have in machine-readable output.
QByteArray countColumns()
{
    QByteArrayList names;
    for (const StatisticRow &row : statisticTable)
        names.append(row.name);
    return names.join(", ");
}

QByteArray selection(const QByteArray &condition)
{
    return "SELECT time, day, " + countColumns() + ", sequence FROM history WHERE document = ?1 " + condition;
}

RecordedCount rowOf(const DatabaseStatement &statement)
{
    RecordedCount count{.time = QDateTime::fromSecsSinceEpoch(statement.integer(0), Qt::UTC),
        .day = QDate::fromString(statement.text(1), Qt::ISODate),
        .stats = {}};
    for (std::size_t i = 0; i < statisticCount; ++i)
        count.stats.*statisticTable[i].count =
            static_cast<quint64>(statement.integer(firstCountColumn + static_cast<int>(i)));
    return count;
}

qint64 minuteOf(const RecordedCount &count)
{
    return count.time.toSecsSinceEpoch() / secondsOfMinute;
}

} // namespace

QByteArray HistoryTable::schema()
{
    QByteArray counts;
    for (const StatisticRow &row : statisticTable)
        counts += QByteArray(row.name) + " INTEGER NOT NULL, ";
    return "CREATE TABLE history (document INTEGER NOT NULL REFERENCES document, sequence INTEGER NOT NULL,"
           " time INTEGER NOT NULL, day TEXT NOT NULL, "
        + counts + "PRIMARY KEY (document, sequence)) STRICT, WITHOUT ROWID";
}

HistoryTable::Failure HistoryTable::find(qint64 document, Place &place) const
{
    DatabaseStatement statement = m_file.prepare(selection("ORDER BY sequence DESC LIMIT 1"));
    return m_file.forEachRow(statement.bind(1, document), [&] {
        place = {.sequence = statement.integer(firstCountColumn + static_cast<int>(statisticCount)),
            .last = rowOf(statement)};
    });
}

HistoryTable::Failure HistoryTable::readLast(qint64 document, std::optional<RecordedCount> &last) const
{
    Place place;
    Failure failure = find(document, place);
    last = place.last;
    return failure;
}

HistoryTable::Failure HistoryTable::append(qint64 document, const RecordedCount &count) const
{
    Place place;
    if (Failure failure = find(document, place))
        return failure;
    if (place.last && place.last->stats == count.stats)
        return {};
    const bool isSameMinute =
        place.sequence > 1 && place.last->day == count.day && minuteOf(*place.last) == minuteOf(count);
    DatabaseStatement statement = m_file.prepare("INSERT OR REPLACE INTO history (document, sequence, time, "
                                                 "day, "
        + countColumns() + ") VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12)");
    constexpr int firstCountValue = 5;
    statement.bind(1, document)
        .bind(2, isSameMinute ? place.sequence : place.sequence + 1)
        .bind(3, count.time.toSecsSinceEpoch())
        .bind(4, count.day.toString(Qt::ISODate));
    for (std::size_t i = 0; i < statisticCount; ++i)
        statement.bind(
            firstCountValue + static_cast<int>(i), static_cast<qint64>(count.stats.*statisticTable[i].count));
    if (Failure failure = m_file.execute(statement))
        return failure;
    const bool isNewDay = place.last && place.last->day != count.day;
    return isNewDay ? thinBefore(document, count.day.addYears(-1)) : Failure();
}

HistoryTable::Failure HistoryTable::read(
    DatabaseStatement &statement, std::vector<RecordedCount> &counts) const
{
    return m_file.forEachRow(statement, [&] { counts.push_back(rowOf(statement)); });
}

HistoryTable::Failure HistoryTable::readDay(
    qint64 document, QDate day, std::vector<RecordedCount> &counts) const
{
    // Without a row before the day, its first row is what it began with.
    DatabaseStatement statement = m_file.prepare(
        selection("AND sequence >= coalesce("
                  "(SELECT sequence FROM history WHERE document = ?1 AND day < ?2 ORDER BY sequence DESC"
                  " LIMIT 1), 0) ORDER BY sequence"));
    statement.bind(1, document).bind(2, day.toString(Qt::ISODate));
    return read(statement, counts);
}

HistoryTable::Failure HistoryTable::readAll(qint64 document, std::vector<RecordedCount> &counts) const
{
    DatabaseStatement statement = m_file.prepare(selection("ORDER BY sequence"));
    statement.bind(1, document);
    return read(statement, counts);
}

HistoryTable::Failure HistoryTable::thinBefore(qint64 document, QDate day) const
{
    DatabaseStatement statement =
        m_file.prepare("DELETE FROM history WHERE document = ?1 AND day < ?2 AND sequence NOT IN"
                       " (SELECT max(sequence) FROM history WHERE document = ?1 AND day < ?2 GROUP BY day)");
    statement.bind(1, document).bind(2, day.toString(Qt::ISODate));
    return m_file.execute(statement);
}

HistoryTable::Failure HistoryTable::forgetBefore(qint64 document, QDate day) const
{
    DatabaseStatement statement =
        m_file.prepare("DELETE FROM history WHERE document = ?1 AND day < ?2 AND sequence <"
                       " (SELECT max(sequence) FROM history WHERE document = ?1 AND day < ?2)");
    statement.bind(1, document).bind(2, day.toString(Qt::ISODate));
    return m_file.execute(statement);
}

HistoryTable::Failure HistoryTable::forget(qint64 document) const
{
    DatabaseStatement statement = m_file.prepare("DELETE FROM history WHERE document = ?1");
    statement.bind(1, document);
    return m_file.execute(statement);
}

HistoryTable::Failure HistoryTable::readUsedSize(qint64 &size) const
{
    DatabaseStatement statement =
        m_file.prepare("SELECT (page_count - freelist_count) * page_size FROM "
                       "pragma_page_count, pragma_freelist_count, pragma_page_size");
    if (statement.step() != DatabaseStatement::Outcome::Row)
        return m_file.faultOf(statement);
    size = statement.integer(0);
    return {};
}

HistoryTable::Failure HistoryTable::makeRoom(qint64 maxFileSize, QDate today) const
{
    // What a transaction writes, and the halves that it leaves of pages, must fit, too.
    const qint64 limit = maxFileSize / 10 * 9;
    qint64 size = 0;
    if (Failure failure = readUsedSize(size); failure || size <= limit)
        return failure;
    DatabaseStatement thinning =
        m_file.prepare("DELETE FROM history WHERE day < ?1 AND (document, sequence) NOT IN"
                       " (SELECT document, max(sequence) FROM history GROUP BY document, day)");
    if (Failure failure = m_file.execute(thinning.bind(1, today.toString(Qt::ISODate))))
        return failure;
    if (Failure failure = readUsedSize(size); failure || size <= limit)
        return failure;
    DatabaseStatement halving = m_file.prepare(
        "DELETE FROM history WHERE day < (SELECT date((julianday(min(day)) + julianday(?1)) / 2) FROM "
        "history)"
        " AND (document, sequence) NOT IN (SELECT document, max(sequence) FROM history GROUP BY document)");
    return m_file.execute(halving.bind(1, today.toString(Qt::ISODate)));
}
