// SPDX-License-Identifier: MIT
// LogSink is the destination of log records: the system journal, standard error, or a test's own list.
// Thread: any; write() may be called from several threads at once.
#pragma once

#include <QString>

#include <memory>

/// Journal priorities 7, 6, 5 and 3 (sd-daemon(3)).
enum class LogLevel { Debug, Info, Notice, Error };

/// Private arguments are replaced before the record is made.
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

/// The journal if it accepts connections at its socket, otherwise standard error. Decided at the first call.
LogSink &systemLogSink();
