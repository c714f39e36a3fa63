// SPDX-License-Identifier: MIT
#include "platform/logging/LogSink.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <systemd/sd-journal.h>
#include <unistd.h>

#include <array>

namespace {

constexpr char journalSocket[] = "/run/systemd/journal/socket";

// sd_journal_sendv() reports success even without a journal, so try its socket first.
bool isJournalAvailable()
{
    const int descriptor = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return false;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, journalSocket, sizeof journalSocket);
    const bool isConnected =
        ::connect(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(descriptor);
    return isConnected;
}

int journalPriority(LogLevel level)
{
    switch (level) {
    case LogLevel::Debug:
        return 7;
    case LogLevel::Info:
        return 6;
    case LogLevel::Notice:
        return 5;
    case LogLevel::Error:
        return 3;
    }
    return 3;
}

QString levelName(LogLevel level)
{
    switch (level) {
    case LogLevel::Debug:
        return QStringLiteral("debug");
    case LogLevel::Info:
        return QStringLiteral("info");
    case LogLevel::Notice:
        return QStringLiteral("notice");
    case LogLevel::Error:
        return QStringLiteral("error");
    }
    return QStringLiteral("error");
}

// "program: [subsystem:category] level: message". Control characters in the message are escaped, so that a
// hostile file name cannot forge a second line.
QString logLine(const LogRecord &record)
{
    QString line = QString::fromLocal8Bit(program_invocation_short_name) + QStringLiteral(": [")
        + record.subsystem + u':' + record.category + QStringLiteral("] ") + levelName(record.level)
        + QStringLiteral(": ");
    for (const QChar unit : record.message) {
        if (unit.category() == QChar::Other_Control)
            line += QStringLiteral("\\x%1").arg(unit.unicode(), 2, 16, QLatin1Char('0'));
        else
            line += unit;
    }
    return line;
}

class JournalSink final : public LogSink {
public:
    void write(const LogRecord &record) override
    {
        std::array fields{
            "MESSAGE=" + record.message.toUtf8(),
            "PRIORITY=" + QByteArray::number(journalPriority(record.level)),
            "SUBSYSTEM=" + record.subsystem.toUtf8(),
            "CATEGORY=" + record.category.toUtf8(),
            "SYSLOG_IDENTIFIER=" + QByteArray(program_invocation_short_name),
        };
        std::array<iovec, fields.size()> vectors;
        for (size_t i = 0; i < fields.size(); ++i)
            vectors[i] = iovec{fields[i].data(), static_cast<size_t>(fields[i].size())};
        sd_journal_sendv(vectors.data(), static_cast<int>(vectors.size()));
    }
};

class StandardErrorSink final : public LogSink {
public:
    void write(const LogRecord &record) override
    {
        // A single write() per line keeps the lines of several threads and processes apart.
        const QByteArray line = logLine(record).toUtf8() + '\n';
        [[maybe_unused]] const ssize_t written =
            ::write(STDERR_FILENO, line.constData(), static_cast<size_t>(line.size()));
    }
};

} // namespace

LogSink &systemLogSink()
{
    static const std::unique_ptr<LogSink> sink = isJournalAvailable()
        ? std::unique_ptr<LogSink>(std::make_unique<JournalSink>())
        : std::make_unique<StandardErrorSink>();
    return *sink;
}
