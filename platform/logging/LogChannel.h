// SPDX-License-Identifier: MIT
// LogChannel writes log messages under one subsystem and category; where they end up is the sink's business.
// Thread: any.  Owner: a function-local static; channels live as long as the process.
#pragma once

#include "platform/logging/LogArgument.h"
#include "platform/logging/LogSink.h"

#include <QLoggingCategory>

#include <initializer_list>

/// Which levels are written follows Qt's logging rules, under the name "subsystem/category": everything but
/// debug, unless QT_LOGGING_RULES or qtlogging.ini say otherwise ("com.QBY.watchFileLog/*.debug=true").
class LogChannel {
public:
    using Arguments = std::initializer_list<LogArgument>;

    LogChannel(const QString &subsystem, const QString &category);

    /// The process's standard log: messages that belong to no channel of their own.
    static LogChannel &standard();

    // In every message each "{}" stands for the next argument; one too many stays as it is.
    void debug(QStringView message, Arguments arguments = {}) { write(LogLevel::Debug, message, arguments); }
    void info(QStringView message, Arguments arguments = {}) { write(LogLevel::Info, message, arguments); }
    void notice(QStringView message, Arguments arguments = {})
    {
        write(LogLevel::Notice, message, arguments);
    }
    void error(QStringView message, Arguments arguments = {}) { write(LogLevel::Error, message, arguments); }

    [[nodiscard]] const QString &subsystem() const { return m_subsystem; }
    [[nodiscard]] const QString &category() const { return m_category; }

private:
    void write(LogLevel level, QStringView message, Arguments arguments);
    [[nodiscard]] bool isEnabled(LogLevel level) const;

    QString m_subsystem;
    QString m_category;
    QByteArray m_ruleName; // QLoggingCategory keeps the pointer
    QLoggingCategory m_rules;
};

/// While it lives, every record of the process goes to the given sink. For tests; nests.
class ScopedLogSink {
public:
    explicit ScopedLogSink(LogSink &sink);
    ScopedLogSink(const ScopedLogSink &) = delete;
    ScopedLogSink &operator=(const ScopedLogSink &) = delete;
    ~ScopedLogSink();

private:
    LogSink *m_previous;
};
