// SPDX-License-Identifier: MIT
#include "counting_service/broker/WorkerProcess.h"

#include "counting_service/broker/ServiceLog.h"
#include "counting_service/worker/CountingWorker.h"
#include "platform/system/ProcessLimits.h"
#include "platform/system/Processes.h"
#include "platform/system/Sanitizers.h"
#include "platform/system/SystemError.h"

#include <fcntl.h>

#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include <utility>

namespace {

constexpr qint64 mebibyte = 1 << 20;

/// Bytes of address space for the program, its libraries, all fonts of a machine, and a heap for each thread.
constexpr quint64 baseMemory = quint64{4096} * mebibyte;
/// Bytes for each byte of a document: text, attributes, lines, and a copy of them while they grow.
constexpr quint64 memoryPerByte = 24;

bool isSentFromOutside(int signal)
{
    return signal == SIGKILL || signal == SIGTERM || signal == SIGHUP || signal == SIGINT;
}

struct LaunchedWorker {
    LaunchedChild child;
    OwnedDescriptor socket; ///< the broker's end
};

/// The worker inherits only standard error, for the log, and its end of the connection. Absent if the system
/// cannot start it; errno says why.
std::optional<LaunchedWorker> launchWorker(const WorkerProgram &program)
{
    auto sockets = makeSocketPair();
    if (!sockets)
        return std::nullopt;
    ChildFiles files;
    files.open(STDIN_FILENO, "/dev/null", O_RDONLY)
        .open(STDOUT_FILENO, "/dev/null", O_WRONLY)
        .duplicate(sockets->second.get(), CountingWorker::socket)
        .closeFrom(CountingWorker::socket + 1);
    std::optional<LaunchedChild> child =
        launchChild(program.path, QByteArrayList{program_invocation_name} + program.arguments, files);
    if (!child)
        return std::nullopt;
    return LaunchedWorker{std::move(*child), std::move(sockets->first)};
}

} // namespace

QString causeText(WorkerEnd end)
{
    switch (end) {
    case WorkerEnd::Dismissed:
        return QStringLiteral("was dismissed");
    case WorkerEnd::KilledFromOutside:
        return QStringLiteral("was killed from outside");
    case WorkerEnd::Crashed:
        return QStringLiteral("crashed");
    case WorkerEnd::Exited:
        return QStringLiteral("exited");
    case WorkerEnd::TimedOut:
        return QStringLiteral("timed out");
    case WorkerEnd::OutOfProcessorTime:
        return QStringLiteral("ran out of processor time");
    case WorkerEnd::SentGarbage:
        return QStringLiteral("sent an invalid message");
    case WorkerEnd::OutOfMemory:
        return QStringLiteral("ran out of memory");
    }
    return QStringLiteral("ended");
}

std::chrono::milliseconds WorkerProgram::timeoutFor(quint64 length) const
{
    return baseTimeout + timeoutPerMebibyte * static_cast<qint64>(length) / mebibyte;
}

std::unique_ptr<WorkerProcess> WorkerProcess::start(const WorkerProgram &program, Callbacks callbacks)
{
    std::optional<LaunchedWorker> worker = launchWorker(program);
    if (!worker) {
        countingServiceLog().error(u"Cannot start a worker: {}", {publicly(systemErrorText(errno))});
        return nullptr;
    }
    return std::unique_ptr<WorkerProcess>(new WorkerProcess(program, std::move(callbacks),
        worker->child.process, std::move(worker->child.processFile), std::move(worker->socket)));
}

WorkerProcess::WorkerProcess(WorkerProgram program, Callbacks callbacks, pid_t process,
    OwnedDescriptor processFile, OwnedDescriptor socket)
    : m_program(std::move(program))
    , m_callbacks(std::move(callbacks))
    , m_process(process)
    , m_processFile(std::move(processFile))
    , m_socket(std::move(socket))
    , m_processNotifier(m_processFile.get(), QSocketNotifier::Read)
    , m_socketNotifier(m_socket.get(), QSocketNotifier::Read)
{
    connect(&m_processNotifier, &QSocketNotifier::activated, this, [this] { reap(); });
    connect(&m_socketNotifier, &QSocketNotifier::activated, this, [this] { readPackets(); });
    connect(&m_timer, &QTimer::timeout, this, [this] { end(WorkerEnd::TimedOut); });
    m_timer.setSingleShot(true);
    limitMemory(0);
    limitProcessorTime(m_program.startTimeout);
    m_timer.start(m_program.startTimeout);
}

WorkerProcess::~WorkerProcess()
{
    if (m_process == 0)
        return;
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
}

bool WorkerProcess::count(WorkerRequest request, int descriptor)
{
    const std::chrono::milliseconds timeout = m_program.timeoutFor(request.length);
    limitMemory(request.length);
    limitProcessorTime(m_program.readingTime(request.kind, static_cast<qsizetype>(request.length)));
    request.number = m_requests + 1;
    if (!sendPacket(m_socket.get(), encode(request), descriptor)) {
        end(WorkerEnd::KilledFromOutside);
        return false;
    }
    m_state = State::Busy;
    m_isReading = true;
    ++m_requests;
    m_timer.start(timeout);
    return true;
}

void WorkerProcess::end(WorkerEnd reason)
{
    if (m_state == State::Ending)
        return;
    m_state = State::Ending;
    m_reason = reason;
    m_timer.stop();
    m_socketNotifier.setEnabled(false);
    ::kill(m_process, SIGKILL);
}

void WorkerProcess::limitMemory(quint64 length) const
{
    if (!isSanitized)
        limitResourceForNow(m_process, RLIMIT_AS, baseMemory + memoryPerByte * length);
}

void WorkerProcess::limitProcessorTime(std::chrono::milliseconds time) const
{
    const auto seconds = static_cast<quint64>(std::chrono::ceil<std::chrono::seconds>(time).count());
    limitResourceForNow(m_process, RLIMIT_CPU, usedProcessorSeconds(m_process) + seconds + 1);
}

void WorkerProcess::readPackets()
{
    while (m_state != State::Ending) {
        const Result<Packet, PacketError> packet = tryReceivePacket(m_socket.get());
        if (packet) {
            takeMessage(packet.value().message);
        } else if (packet.error() == PacketError::Closed) {
            // A worker that is ending is reaped with its status; one that only closed its socket is killed.
            m_socketNotifier.setEnabled(false);
            ::kill(m_process, SIGKILL);
            return;
        } else if (packet.error() == PacketError::WouldBlock) {
            return;
        } else {
            end(WorkerEnd::SentGarbage);
        }
    }
}

void WorkerProcess::takeMessage(const QByteArray &message)
{
    if (m_state == State::Starting) {
        const std::optional<WorkerGreeting> greeting = decodeGreeting(message);
        if (!greeting)
            return end(WorkerEnd::SentGarbage);
        m_timer.stop();
        m_state = State::Idle;
        return m_callbacks.onReady(*this, greeting->sandbox);
    }
    if (m_state == State::Busy && m_isReading) {
        const std::optional<WorkerProgress> progress = decodeProgress(message);
        if (progress && progress->number == m_requests) {
            m_isReading = false;
            return limitProcessorTime(m_timer.intervalAsDuration());
        }
    }
    const std::optional<WorkerReply> reply = decodeReply(message);
    if (m_state != State::Busy || !reply || reply->number != m_requests)
        return end(WorkerEnd::SentGarbage);
    if (!reply->counts && reply->counts.error().isOutOfMemory())
        return end(WorkerEnd::OutOfMemory);
    m_timer.stop();
    m_state = State::Idle;
    m_callbacks.onAnswer(*this, reply->counts);
}

void WorkerProcess::reap()
{
    readPackets(); // messages sent before it ended
    int status = 0;
    if (m_process == 0 || ::waitpid(m_process, &status, WNOHANG) != m_process)
        return;
    m_process = 0;
    m_state = State::Ending;
    m_timer.stop();
    m_processNotifier.setEnabled(false);
    m_socketNotifier.setEnabled(false);
    WorkerEnd end = WorkerEnd::Exited;
    if (m_reason)
        end = *m_reason;
    else if (WIFSIGNALED(status) && WTERMSIG(status) == SIGXCPU)
        end = WorkerEnd::OutOfProcessorTime;
    else if (WIFSIGNALED(status))
        end = isSentFromOutside(WTERMSIG(status)) ? WorkerEnd::KilledFromOutside : WorkerEnd::Crashed;
    if (end != WorkerEnd::Dismissed) {
        countingServiceLog().notice(u"A worker {} (wait status {})", {publicly(causeText(end)), status});
    }
    m_callbacks.onEnd(*this, end);
}
