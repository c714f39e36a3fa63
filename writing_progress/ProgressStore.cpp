// SPDX-License-Identifier: MIT
#include "writing_progress/ProgressStore.h"

#include "platform/database/DatabaseFolder.h"
#include "platform/logging/LogChannel.h"

#include <QFile>
#include <QStandardPaths>
#include <QTimeZone>

#include <algorithm>

namespace {

QByteArray databasePath()
{
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/quillbay/com.quillbay.Documents.sqlite3"));
}

DatabaseForm formOfStore(qint64 maxSize)
{
    return {.applicationIdentifier = 0x51425750, // "QBWP"
        .schema = {"CREATE TABLE document (id INTEGER PRIMARY KEY AUTOINCREMENT, path BLOB NOT NULL UNIQUE,"
                   " position INTEGER NOT NULL, stamp BLOB) STRICT",
            PlanTable::schema(), HistoryTable::schema(),
            "CREATE TABLE setting (name TEXT PRIMARY KEY NOT NULL, value INTEGER NOT NULL) STRICT"},
        .maxFileSize = maxSize,
        .maxRowSize = 64 << 10, // well above the longest path
        .isCheckedWhenOpened = false}; // takes seconds for the history of years
}

/// When a count belongs to the history: at the save, if that is known and possible.
QDateTime timeOf(const DocumentCount &count, const std::optional<RecordedCount> &last, const QDateTime &now)
{
    const bool isPossible =
        count.saved.isValid() && count.saved <= now && (!last || count.saved > last->time);
    return isPossible ? count.saved.toTimeZone(now.timeZone()) : now;
}

} // namespace

QByteArray folderOf(const QByteArray &path)
{
    return path.first(std::max<qsizetype>(path.lastIndexOf('/'), 1));
}

ProgressStore::ProgressStore(std::chrono::milliseconds timeout, qint64 maxSize)
    : m_timeout(timeout)
    , m_maxSize(maxSize)
    , m_file(databasePath(), formOfStore(maxSize))
    , m_plans(m_file)
    , m_history(m_file)
{
    m_file.setTimeout(timeout);
}

ProgressStore::Failure ProgressStore::read(const std::function<Failure()> &reading)
{
    const Failure failure = m_file.read(reading);
    const bool isBroken = failure && failure->kind == DatabaseFault::Kind::Broken;
    // Once more under the lock, as another process may have put it aside already.
    return isBroken ? write(reading) : failure;
}

ProgressStore::Failure ProgressStore::write(const std::function<Failure()> &writing)
{
    return writeInFolder(
        m_file, m_timeout, [&] { return m_file.write(writing); },
        [this](const DatabaseFault &fault, const QByteArray &newName) {
            m_brokenFile = newName;
            LogChannel::standard().error(u"The list of documents could not be used: {}; renamed it to {}",
                {publicly(fault.reason), publicly(QFile::decodeName(newName))});
        });
}

ProgressStore::Failure ProgressStore::readDocuments(std::vector<ListedDocument> &documents)
{
    DatabaseStatement statement =
        m_file.prepare("SELECT id, path, stamp FROM document ORDER BY position, id LIMIT ?1");
    statement.bind(1, static_cast<qint64>(maxDocuments));
    return m_file.forEachRow(statement, [&] {
        documents.push_back({statement.integer(0), statement.bytes(1), statement.bytes(2)});
    });
}

ProgressStore::Answer<std::vector<ListedDocument>> ProgressStore::documents()
{
    std::vector<ListedDocument> documents;
    const auto reading = [&] {
        documents.clear();
        return readDocuments(documents);
    };
    if (Failure failure = read(reading))
        return *failure;
    return documents;
}

ProgressStore::Failure ProgressStore::find(const QByteArray &path, ListedDocument &document)
{
    DatabaseStatement statement = m_file.prepare("SELECT id, path, stamp FROM document WHERE path = ?1");
    return m_file.forEachRow(statement.bindBytes(1, path), [&] {
        document = {statement.integer(0), statement.bytes(1), statement.bytes(2)};
    });
}

ProgressStore::Answer<int> ProgressStore::add(const QByteArrayList &paths)
{
    int added = 0;
    const auto adding = [&]() -> Failure {
        added = 0;
        std::vector<ListedDocument> documents;
        if (Failure failure = readDocuments(documents))
            return failure;
        DatabaseStatement statement = m_file.prepare(
            "INSERT INTO document (path, position) SELECT ?1, coalesce(max(position), 0) + 1 FROM document"
            " WHERE true ON CONFLICT DO NOTHING RETURNING id");
        for (const QByteArray &path : paths) {
            if (documents.size() + static_cast<std::size_t>(added) >= maxDocuments)
                return {};
            statement.reset();
            if (Failure failure = m_file.forEachRow(statement.bindBytes(1, path), [&added] { ++added; }))
                return failure;
        }
        return {};
    };
    if (Failure failure = write(adding))
        return *failure;
    return added;
}

ProgressStore::Failure ProgressStore::forEach(const QByteArrayList &paths, const char *text)
{
    DatabaseStatement statement = m_file.prepare(text);
    for (const QByteArray &path : paths) {
        statement.reset();
        if (Failure failure = m_file.execute(statement.bindBytes(1, path)))
            return failure;
    }
    return {};
}

ProgressStore::Failure ProgressStore::remove(const QByteArrayList &paths)
{
    return write([&]() -> Failure {
        for (const char *const text :
            {"DELETE FROM history WHERE document = (SELECT id FROM document WHERE path = ?1)",
                "DELETE FROM plan WHERE path = ?1", "DELETE FROM document WHERE path = ?1"}) {
            if (Failure failure = forEach(paths, text))
                return failure;
        }
        return {};
    });
}

ProgressStore::Failure ProgressStore::setOrder(const QByteArrayList &paths)
{
    return write([&]() -> Failure {
        // Behind those that are not named, so that one that was added meanwhile keeps a place of its own.
        return forEach(
            paths, "UPDATE document SET position = (SELECT max(position) + 1 FROM document) WHERE path = ?1");
    });
}

ProgressStore::Failure ProgressStore::move(const QByteArray &from, const QByteArray &to)
{
    if (from == to)
        return {};
    ListedDocument listed;
    const auto finding = [&] {
        listed = {};
        return find(from, listed);
    };
    if (Failure failure = read(finding); failure || listed.identifier == 0)
        return failure;
    return write([&]() -> Failure {
        ListedDocument moved;
        if (Failure failure = find(from, moved); failure || moved.identifier == 0)
            return failure;
        for (const char *const text :
            {"DELETE FROM history WHERE document = (SELECT id FROM document WHERE path = ?1)",
                "DELETE FROM plan WHERE path = ?1", "DELETE FROM document WHERE path = ?1"}) {
            if (Failure failure = forEach({to}, text))
                return failure;
        }
        for (const char *const text :
            {"UPDATE document SET path = ?2 WHERE path = ?1", "UPDATE plan SET path = ?2 WHERE path = ?1"}) {
            DatabaseStatement statement = m_file.prepare(text);
            if (Failure failure = m_file.execute(statement.bindBytes(1, from).bindBytes(2, to)))
                return failure;
        }
        return {};
    });
}

ProgressStore::Failure ProgressStore::readTotal(qint64 document, QDate day, DayTotal &total)
{
    std::vector<RecordedCount> counts;
    Failure failure = m_history.readDay(document, day, counts);
    total = ::totalOfDay(day, counts);
    return failure;
}

ProgressStore::Answer<std::vector<Milestone>> ProgressStore::record(
    const DocumentCount &count, const QDateTime &now)
{
    return recordAll({count}, now);
}

ProgressStore::Answer<std::vector<Milestone>> ProgressStore::recordAll(
    const std::vector<DocumentCount> &counts, const QDateTime &now)
{
    // Most counts are of documents that are in no list: they cost no lock.
    bool isAnyListed = false;
    const auto finding = [&]() -> Failure {
        isAnyListed = false;
        for (const DocumentCount &count : counts) {
            ListedDocument document;
            if (Failure failure = find(count.path, document))
                return failure;
            isAnyListed = isAnyListed || document.identifier != 0;
        }
        return {};
    };
    std::vector<Milestone> milestones;
    if (Failure failure = read(finding))
        return *failure;
    if (!isAnyListed)
        return milestones;
    const auto recording = [&]() -> Failure {
        milestones.clear();
        for (const DocumentCount &count : counts) {
            ListedDocument document;
            if (Failure failure = find(count.path, document))
                return failure;
            if (document.identifier == 0)
                continue;
            if (Failure failure = recordFor(document, count, now, milestones))
                return failure;
        }
        return {};
    };
    if (Failure failure = write(recording))
        return *failure;
    return milestones;
}

ProgressStore::Failure ProgressStore::recordFor(const ListedDocument &document, const DocumentCount &count,
    const QDateTime &now, std::vector<Milestone> &milestones)
{
    if (!count.stamp.isEmpty() && count.stamp != document.stamp) {
        DatabaseStatement statement = m_file.prepare("UPDATE document SET stamp = ?2 WHERE id = ?1");
        statement.bind(1, document.identifier).bindBytes(2, count.stamp);
        if (Failure failure = m_file.execute(statement))
            return failure;
    }
    std::optional<RecordedCount> last;
    if (Failure failure = m_history.readLast(document.identifier, last))
        return failure;
    if (last && last->stats == count.stats)
        return {};
    const QDateTime time = timeOf(count, last, now);
    bool keeps = true;
    if (Failure failure = readKeepsHistory(keeps))
        return failure;
    if (Failure failure = m_history.makeRoom(m_maxSize, now.date()))
        return failure;
    if (Failure failure = m_history.append(
            document.identifier, {.time = time.toUTC(), .day = time.date(), .stats = count.stats}))
        return failure;
    if (Failure failure = keeps ? Failure() : m_history.forgetBefore(document.identifier, now.date()))
        return failure;
    DayTotal total;
    if (Failure failure = readTotal(document.identifier, now.date(), total))
        return failure;
    if (Failure failure = m_plans.noteMilestones(count.path, total, milestones))
        return failure;
    return noteMilestonesOfFolder(folderOf(count.path), now.date(), milestones);
}

ProgressStore::Failure ProgressStore::noteMilestonesOfFolder(
    const QByteArray &folder, QDate day, std::vector<Milestone> &milestones)
{
    Plans plans;
    if (Failure failure = m_plans.read(plans); failure || !plans.contains(folder))
        return failure;
    std::vector<ListedDocument> documents;
    if (Failure failure = readDocuments(documents))
        return failure;
    DayTotal total{.day = day, .before = {}, .counts = {}, .added = {}};
    for (const ListedDocument &document : documents) {
        if (folderOf(document.path) != folder)
            continue;
        DayTotal one;
        if (Failure failure = readTotal(document.identifier, day, one))
            return failure;
        total += one;
    }
    return m_plans.noteMilestones(folder, total, milestones);
}

ProgressStore::Answer<std::vector<RecordedCount>> ProgressStore::history(const QByteArray &path)
{
    std::vector<RecordedCount> counts;
    const auto reading = [&]() -> Failure {
        counts.clear();
        ListedDocument document;
        if (Failure failure = find(path, document))
            return failure;
        return m_history.readAll(document.identifier, counts);
    };
    if (Failure failure = read(reading))
        return *failure;
    return counts;
}

ProgressStore::Answer<std::map<qint64, DayTotal>> ProgressStore::totalsOfDay(QDate day)
{
    std::map<qint64, DayTotal> totals;
    const auto reading = [&]() -> Failure {
        totals.clear();
        if (Failure failure = m_file.execute("SAVEPOINT totals")) // one lock for all, and one state
            return failure;
        std::vector<ListedDocument> documents;
        if (Failure failure = readDocuments(documents))
            return failure;
        for (const ListedDocument &document : documents) {
            std::vector<RecordedCount> counts;
            if (Failure failure = m_history.readDay(document.identifier, day, counts))
                return failure;
            if (!counts.empty())
                totals[document.identifier] = ::totalOfDay(day, counts);
        }
        return m_file.execute("RELEASE totals");
    };
    if (Failure failure = read(reading))
        return *failure;
    return totals;
}

ProgressStore::Answer<std::optional<DayTotal>> ProgressStore::totalOfDay(const QByteArray &path, QDate day)
{
    std::vector<RecordedCount> counts;
    const auto reading = [&]() -> Failure {
        counts.clear();
        ListedDocument document;
        if (Failure failure = find(path, document))
            return failure;
        return m_history.readDay(document.identifier, day, counts);
    };
    if (Failure failure = read(reading))
        return *failure;
    return counts.empty() ? std::optional<DayTotal>() : ::totalOfDay(day, counts);
}

ProgressStore::Failure ProgressStore::forgetHistory(const QByteArrayList &paths)
{
    return write([&] {
        return forEach(paths,
            "DELETE FROM history WHERE document = (SELECT id FROM document WHERE path = ?1) AND sequence <"
            " (SELECT max(sequence) FROM history WHERE document = (SELECT id FROM document WHERE path = "
            "?1))");
    });
}

ProgressStore::Failure ProgressStore::readKeepsHistory(bool &keeps)
{
    DatabaseStatement statement = m_file.prepare("SELECT value FROM setting WHERE name = 'keepsHistory'");
    const DatabaseStatement::Outcome outcome = statement.step();
    if (outcome == DatabaseStatement::Outcome::Failed)
        return m_file.faultOf(statement);
    keeps = outcome == DatabaseStatement::Outcome::End || statement.integer(0) != 0;
    return {};
}

ProgressStore::Answer<bool> ProgressStore::keepsHistory()
{
    bool keeps = true;
    if (Failure failure = read([&] { return readKeepsHistory(keeps); }))
        return *failure;
    return keeps;
}

ProgressStore::Failure ProgressStore::setKeepsHistory(bool keeps)
{
    return write([&] {
        DatabaseStatement statement =
            m_file.prepare("INSERT OR REPLACE INTO setting (name, value) VALUES ('keepsHistory', ?1)");
        statement.bind(1, qint64{keeps});
        return m_file.execute(statement);
    });
}

ProgressStore::Answer<ProgressStore::Plans> ProgressStore::plans()
{
    Plans plans;
    const auto reading = [&] {
        plans.clear();
        return m_plans.read(plans);
    };
    if (Failure failure = read(reading))
        return *failure;
    return plans;
}

ProgressStore::Failure ProgressStore::setPlan(const QByteArray &path, const Plan &plan)
{
    return write([&] { return m_plans.set(path, plan); });
}
