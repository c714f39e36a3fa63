// SPDX-License-Identifier: MIT
#include "platform/logging/LogChannel.h"

#include <atomic>

namespace {

std::atomic<LogSink *> sinkOfTest = nullptr;

QString fillIn(QStringView message, LogChannel::Arguments arguments)
{
    QString filled;
    const LogArgument *argument = arguments.begin();
    for (;;) {
        const qsizetype place = argument == arguments.end() ? -1 : message.indexOf(u"{}");
        if (place < 0)
            return filled.append(message);
        filled.append(message.first(place)).append(argument->visibleText());
        message = message.sliced(place + 2);
        ++argument;
    }
}

} // namespace

QString LogArgument::visibleText() const
{
    return m_isPublic ? m_text : QStringLiteral("<private>");
}

LogArgument publicly(const QString &text)
{
    LogArgument argument(text);
    argument.m_isPublic = true;
    return argument;
}

LogChannel::LogChannel(const QString &subsystem, const QString &category)
    : m_subsystem(subsystem)
    , m_category(category)
    , m_ruleName((subsystem + u'/' + category).toUtf8())
    , m_rules(m_ruleName.constData(), QtInfoMsg)
{
}

LogChannel &LogChannel::standard()
{
    static LogChannel channel(QStringLiteral("com.quillbay"), QStringLiteral("default"));
    return channel;
}

bool LogChannel::isEnabled(LogLevel level) const
{
    switch (level) {
    case LogLevel::Debug:
        return m_rules.isDebugEnabled();
    case LogLevel::Info:
        return m_rules.isInfoEnabled();
    case LogLevel::Notice:
        return m_rules.isWarningEnabled();
    case LogLevel::Error:
        return m_rules.isCriticalEnabled();
    }
    return true;
}

void LogChannel::write(LogLevel level, QStringView message, Arguments arguments)
{
    if (!isEnabled(level))
        return;
    LogSink *sink = sinkOfTest.load();
    (sink ? *sink : systemLogSink()).write({level, m_subsystem, m_category, fillIn(message, arguments)});
}

ScopedLogSink::ScopedLogSink(LogSink &sink)
    : m_previous(sinkOfTest.exchange(&sink))
{
}

ScopedLogSink::~ScopedLogSink()
{
    sinkOfTest.store(m_previous);
}
