// SPDX-License-Identifier: MIT
// LogChannel writes log messages under one subsystem and category; the sink decides where they go.
// Thread: any.  Owner: a function-local static; channels live as long as the process.
#pragma once

#include "platform/logging/LogSink.h"

#include <QLoggingCategory>
#include <QString>

#include <concepts>
#include <initializer_list>
#include <utility>

/// A value in a log message, and whether readers of the log may see it. Text is private unless it is wrapped
/// in publicly(), since it may be a file name or a piece of a document. Numbers and truth values are public.
class LogArgument {
public:
    LogArgument(QString text)
        : m_text(std::move(text))
        , m_isPublic(false)
    {
    }
    LogArgument(bool value)
        : m_text(value ? QStringLiteral("true") : QStringLiteral("false"))
    {
    }
    template <std::integral Integer>
    LogArgument(Integer value)
        : m_text(QString::number(value))
    {
    }
    LogArgument(double value)
        : m_text(QString::number(value))
    {
    }

    /// What the log shows: the text of a public argument, "<private>" for a private one.
    [[nodiscard]] QString visibleText() const;

private:
    friend LogArgument publicly(const QString &text);

    QString m_text;
    bool m_isPublic = true;
};

/// Text that readers of the log may see.
LogArgument publicly(const QString &text);

/// Which levels are written follows Qt's logging rules, under the name "subsystem/category": everything but
/// debug, unless QT_LOGGING_RULES or qtlogging.ini say otherwise ("com.QBY.watchFileLog/*.debug=true").
class LogChannel {
public:
    using Arguments = std::initializer_list<LogArgument>;

    LogChannel(const QString &subsystem, const QString &category);

    /// The standard log of the process, for messages without a channel of their own.
    static LogChannel &standard();

    // Each "{}" in a message is replaced by the next argument; excess ones stay.
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

/// Sends every record of the process to the given sink as long as it exists. For tests; can be nested.
class ScopedLogSink {
public:
    explicit ScopedLogSink(LogSink &sink);
    ScopedLogSink(const ScopedLogSink &) = delete;
    ScopedLogSink &operator=(const ScopedLogSink &) = delete;
    ~ScopedLogSink();

private:
    LogSink *m_previous;
};
