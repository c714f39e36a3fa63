// SPDX-License-Identifier: MIT
// RecordingLogSink records every log record of the process while it lives.
// Thread: any.  Owner: the test.
#pragma once

#include "platform/logging/LogChannel.h"

#include <QStringList>

#include <mutex>
#include <vector>

class RecordingLogSink final : public LogSink {
public:
    RecordingLogSink()
        : m_scope(*this)
    {
    }

    void write(const LogRecord &record) override;

    [[nodiscard]] std::vector<LogRecord> records() const;
    /// Of all records, or of one level.
    [[nodiscard]] QStringList messages() const;
    [[nodiscard]] QStringList messages(LogLevel level) const;

private:
    mutable std::mutex m_mutex;
    std::vector<LogRecord> m_records;
    ScopedLogSink m_scope;
};
