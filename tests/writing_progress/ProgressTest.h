// SPDX-License-Identifier: MIT
// ProgressTest is the fixture of tests of the store: documents that are counted at times of a clock that the
// test sets.
// Thread: main.
#pragma once

#include "tests/harness/QuillbayTest.h"
#include "writing_progress/ProgressStore.h"

#include <QTimeZone>

class ProgressTest : public QuillbayTest {
protected:
    static QDateTime at(const char *text, const QTimeZone &zone = QTimeZone::utc())
    {
        QDateTime time =
            QDateTime::fromString(QString::fromLatin1(text), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        return {time.date(), time.time(), zone};
    }
    static QDate day(const char *text) { return QDate::fromString(QString::fromLatin1(text), Qt::ISODate); }
    static QBYWordCounterStats words(quint64 count)
    {
        return {.numberOfWords = count, .numberOfCharacters = 5 * count};
    }

    void add(const QByteArrayList &paths) { EXPECT_TRUE(m_store.add(paths).hasValue()); }
    std::vector<Milestone> record(const QByteArray &path, quint64 wordCount, const QDateTime &now)
    {
        const auto milestones = m_store.record({.path = path, .stats = words(wordCount)}, now);
        EXPECT_TRUE(milestones.hasValue()) << milestones.error().reason.toStdString();
        return milestones.value();
    }
    /// Of the only document.
    DayTotal total(const char *date)
    {
        const auto totals = m_store.totalsOfDay(day(date));
        EXPECT_TRUE(totals.hasValue());
        return totals.value().empty() ? DayTotal() : totals.value().begin()->second;
    }
    qint64 change(const char *date) { return total(date).change(Statistic::Words); }
    std::vector<quint64> history(const QByteArray &path)
    {
        std::vector<quint64> found;
        const auto counts = m_store.history(path);
        EXPECT_TRUE(counts.hasValue());
        for (const RecordedCount &count : counts.value())
            found.push_back(count.stats.numberOfWords);
        return found;
    }
    QByteArrayList paths()
    {
        QByteArrayList found;
        const auto documents = m_store.documents();
        EXPECT_TRUE(documents.hasValue());
        for (const ListedDocument &document : documents.value())
            found.append(document.path);
        return found;
    }

    ProgressStore m_store;
};
