// SPDX-License-Identifier: MIT
// WatchedFileTest is the fixture of the tests of the watched-file model: a document, a delegate, a fake clock
// and the model's log with its debug messages.
// Thread: main.
#pragma once

#include "platform/system/FileURL.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/watching/RecordingDelegate.h"
#include "watching/WatchTextFileModel.h"

#include <QCoreApplication>
#include <QLoggingCategory>

class WatchedFileTest : public QuillbayTest {
protected:
    WatchedFileTest()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("com.QBY.watchFileLog/*.debug=true"));
    }
    ~WatchedFileTest() override { QLoggingCategory::setFilterRules({}); }

    std::unique_ptr<WatchTextFileModel> makeModel(const QString &path)
    {
        return std::make_unique<WatchTextFileModel>(
            QUrl::fromLocalFile(path), &m_delegate, m_activity, m_clock);
    }
    /// A model that watches; its messages until now are discarded.
    std::unique_ptr<WatchTextFileModel> watch(const QString &path)
    {
        auto model = makeModel(path);
        model->beginWatchingTextFile();
        takeLog();
        return model;
    }
    /// Processes pending events and lets time pass.
    void pass(std::chrono::milliseconds duration)
    {
        QCoreApplication::processEvents();
        m_clock.advance(duration);
        QCoreApplication::processEvents();
    }
    /// "debug MESSAGE" and "error MESSAGE" of the model's channel since the last call.
    QStringList takeLog()
    {
        QStringList messages;
        const std::vector<LogRecord> records = m_log.records();
        for (; m_seenRecords < records.size(); ++m_seenRecords) {
            const LogRecord &record = records[m_seenRecords];
            if (record.subsystem != QStringLiteral("com.QBY.watchFileLog")
                || record.category != QStringLiteral("WatchFileModelLog"))
                continue;
            const bool isError = record.level == LogLevel::Error;
            messages << (isError ? QStringLiteral("error ") : QStringLiteral("debug ")) + record.message;
        }
        return messages;
    }
    [[nodiscard]] static QString pathOf(const QString &name)
    {
        return world().root() + QStringLiteral("/files/") + name;
    }

    RecordingLogSink m_log;
    size_t m_seenRecords = 0;
    FakeClock m_clock;
    ApplicationActivity m_activity{true};
    RecordingDelegate m_delegate;
    const QString m_path = writeFile(QStringLiteral("f.txt"), "before");
    const QString m_docx = writeFile(QStringLiteral("f.docx"), "PK");
    const QString m_backgroundMessage = QStringLiteral("debug We are in the background, start the timer.");
    const QString m_activeMessage = QStringLiteral("debug We are active, kill poll timer.");
    const QString m_waitingMessage =
        QStringLiteral("debug Force read called but we are waiting for a reaquire block to be called.");
};
