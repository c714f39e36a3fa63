// SPDX-License-Identifier: MIT
#include "tests/harness/RecordingLogSink.h"

void RecordingLogSink::write(const LogRecord &record)
{
    const std::lock_guard lock(m_mutex);
    m_records.push_back(record);
}

std::vector<LogRecord> RecordingLogSink::records() const
{
    const std::lock_guard lock(m_mutex);
    return m_records;
}

QStringList RecordingLogSink::messages() const
{
    QStringList messages;
    for (const LogRecord &record : records())
        messages.append(record.message);
    return messages;
}

QStringList RecordingLogSink::messages(LogLevel level) const
{
    QStringList messages;
    for (const LogRecord &record : records()) {
        if (record.level == level)
            messages.append(record.message);
    }
    return messages;
}
