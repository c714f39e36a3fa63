// SPDX-License-Identifier: MIT
#include "command/ProgressLine.h"

#include "command/CommandWords.h"
#include "command/FileNames.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <system_error>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto delay = 1s;
constexpr auto interval = 200ms;

constexpr char eraseLine[] = "\r\033[K";

std::atomic<bool> isLineShown = false; // of the process, which has one terminal
static_assert(std::atomic<bool>::is_always_lock_free); // read by a signal handler

/// Terminals without control sequences say so by their type, as does what is no terminal at all.
bool canErase()
{
    const QByteArray type = qgetenv("TERM");
    return ::isatty(STDERR_FILENO) && !type.isEmpty() && type != "dumb";
}

/// The shell's prompt would follow a line that Ctrl+C leaves behind. Calls async-signal-safe functions only.
extern "C" void eraseAndEnd(int signal)
{
    if (isLineShown) {
        [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, eraseLine, sizeof eraseLine - 1);
    }
    std::raise(signal); // SA_RESETHAND: ends the process once this handler returns
}

/// Leaves signals alone that somebody ignores or handles already.
void eraseAtSignals()
{
    struct sigaction action { };
    action.sa_handler = eraseAndEnd;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int signal : {SIGINT, SIGTERM}) {
        struct sigaction previous { };
        if (::sigaction(signal, nullptr, &previous) == 0 && previous.sa_handler == SIG_DFL)
            ::sigaction(signal, &action, nullptr);
    }
}

void writeToStandardError(const QByteArray &text)
{
    [[maybe_unused]] const ssize_t written =
        ::write(STDERR_FILENO, text.constData(), static_cast<size_t>(text.size()));
}

// A longer line would wrap, and erasing it would leave its first part.
qsizetype terminalWidth()
{
    winsize size{};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

} // namespace

ProgressLine::ProgressLine(qsizetype fileCount)
    : m_fileCount(fileCount)
{
    if (!canErase())
        return;
    eraseAtSignals();
    try {
        m_thread = std::thread([this] { drawUntilStopped(); });
    } catch (const std::system_error &) { // no thread available: work without showing the progress
    }
}

ProgressLine::~ProgressLine()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_isStopped = true;
    }
    m_stop.notify_one();
    m_thread.join();
    erase();
}

void ProgressLine::startReading(const QByteArray &fileName, qsizetype index)
{
    const std::lock_guard lock(m_mutex);
    m_fileName = fileName;
    m_index = index;
    m_length = 0;
    m_position = 0;
}

void ProgressLine::startCounting(qsizetype length)
{
    const std::lock_guard lock(m_mutex);
    m_length = length;
}

void ProgressLine::hide()
{
    const std::lock_guard lock(m_mutex);
    erase();
}

void ProgressLine::drawUntilStopped()
{
    std::unique_lock lock(m_mutex);
    const auto isStopped = [this] { return m_isStopped; };
    if (m_stop.wait_for(lock, delay, isStopped))
        return;
    do {
        draw();
    } while (!m_stop.wait_for(lock, interval, isStopped));
}

void ProgressLine::draw()
{
    if (m_length == 0 && m_fileName == "-" && ::isatty(STDIN_FILENO)) {
        // The user types into this line: it must not be drawn over.
        if (!std::exchange(m_hasPrompted, true))
            writeToStandardError(
                CommandText::tr("reading standard input; Ctrl+D on an empty line ends it").toUtf8() + '\n');
        return;
    }
    QStringList parts;
    if (m_fileCount > 1)
        parts.append(CommandText::tr("%1 of %2").arg(m_index + 1).arg(m_fileCount));
    if (m_length > 0)
        parts.append(
            CommandText::tr("%1 %").arg(100 * m_position.load(std::memory_order_relaxed) / m_length));
    parts.append(
        m_fileName == "-" ? CommandText::tr("standard input") : QString::fromUtf8(printableName(m_fileName)));
    const QString text = m_length > 0 ? CommandText::tr("counting %1") : CommandText::tr("reading %1");
    const QString line = text.arg(parts.join(QStringLiteral(", ")));
    isLineShown = true;
    writeToStandardError(eraseLine + line.left(terminalWidth() - 1).toUtf8());
}

void ProgressLine::erase()
{
    if (isLineShown.exchange(false))
        writeToStandardError(eraseLine);
}
