// SPDX-License-Identifier: MIT
// LogSink is where finished log records go: the system journal, standard error, or a test's own list.
// Thread: write() may be called from any thread and from several at once.
#pragma once

#include <QString>

#include <memory>

/// Journal priorities 7, 6, 5 and 3 (sd-daemon(3)).
enum class LogLevel { Debug, Info, Notice, Error };

/// A record holds no private argument any more: they are redacted before it is made.
struct LogRecord {
    LogLevel level;
    QString subsystem;
    QString category;
    QString message;
};

class LogSink {
public:
    LogSink() = default;
    LogSink(const LogSink &) = delete;
    LogSink &operator=(const LogSink &) = delete;
    virtual ~LogSink() = default;

    /// Never fails and never blocks for long; a record that cannot be delivered is lost.
    virtual void write(const LogRecord &record) = 0;
};

/// The journal where one listens at its socket, else standard error. Decided at the first call and kept.
LogSink &systemLogSink();

/// One line for a record, without its line end: "program: [subsystem:category] level: message". Control
/// characters in the message are escaped, so that a hostile file name cannot forge a second line.
QString formattedLogLine(const LogRecord &record);
