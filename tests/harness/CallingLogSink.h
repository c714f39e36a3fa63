// SPDX-License-Identifier: MIT
// CallingLogSink calls a function for each log record of the process while it lives.
// Thread: that of the record.  Owner: the test.
#pragma once

#include "platform/logging/LogChannel.h"

#include <functional>
#include <utility>

class CallingLogSink final : public LogSink {
public:
    explicit CallingLogSink(std::function<void(const LogRecord &record)> call)
        : m_call(std::move(call))
        , m_scope(*this)
    {
    }
    void write(const LogRecord &record) override { m_call(record); }

private:
    std::function<void(const LogRecord &record)> m_call;
    ScopedLogSink m_scope;
};
