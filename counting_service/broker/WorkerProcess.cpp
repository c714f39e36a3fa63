// SPDX-License-Identifier: MIT
#include "counting_service/broker/WorkerProcess.h"

#include "counting_service/broker/ServiceLog.h"
#include "counting_service/broker/WorkerLaunch.h"
#include "platform/system/SystemError.h"

#include <csignal>
#include <ctime>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <utility>

namespace {

constexpr qint64 mebibyte = 1 << 20;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isMemoryLimited = false; // sanitizers reserve terabytes of addresses
#else
constexpr bool isMemoryLimited = true;
#endif
/// Bytes of addresses: the program, its libraries, all fonts of a machine, a heap for each thread.
constexpr quint64 memoryOfAWorker = quint64(4096) * mebibyte;
/// Of each byte of a document, as text, attributes, lines, and all of them once more while they grow.
constexpr quint64 memoryPerByte = 24;

bool isFromOutside(int signal)
{
    return signal == SIGKILL || signal == SIGTERM || signal == SIGHUP || signal == SIGINT;
}

void limit(pid_t process, __rlimit_resource resource, quint64 value)
{
    // The hard limit stays: it could never be raised again for the next document.
    rlimit old = {};
    if (::prlimit(process, resource, nullptr, &old) != 0)
        return;
    const rlimit wanted{value < old.rlim_max ? value : old.rlim_max, old.rlim_max};
    ::prlimit(process, resource, &wanted, nullptr);
}

quint64 secondsUsed(pid_t process)
{
    clockid_t clock = 0;
    timespec used = {};
    if (::clock_getcpuclockid(process, &clock) != 0 || ::clock_gettime(clock, &used) != 0)
        return 0;
    return static_cast<quint64>(used.tv_sec);
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
    case WorkerEnd::Left:
        return QStringLiteral("left");
    case WorkerEnd::TooSlow:
        return QStringLiteral("took too long");
    case WorkerEnd::SpokeNonsense:
        return QStringLiteral("sent what it was not asked for");
    case WorkerEnd::OutOfMemory:
        return QStringLiteral("ran out of memory");
    }
    return QStringLiteral("ended");
}

std::chrono::milliseconds WorkerProgram::countLimitFor(quint64 length) const
{
    return countLimit + countLimitPerMebibyte * static_cast<qint64>(length) / mebibyte;
}

std::unique_ptr<WorkerProcess> WorkerProcess::start(const WorkerProgram &program, Callbacks callbacks)
{
    std::optional<LaunchedWorker> worker = launchWorker(program.path, program.arguments);
    if (!worker) {
        countingServiceLog().error(u"A worker cannot be started: {}", {publicly(systemErrorText(errno))});
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
    connect(&m_processNotifier, &QSocketNotifier::activated, this, [this] { collect(); });
    connect(&m_socketNotifier, &QSocketNotifier::activated, this, [this] { readPackets(); });
    connect(&m_timer, &QTimer::timeout, this, [this] { end(WorkerEnd::TooSlow); });
    m_timer.setSingleShot(true);
    limitResources(0, m_program.startLimit);
    m_timer.start(m_program.startLimit);
}

WorkerProcess::~WorkerProcess()
{
    if (m_process == 0)
        return;
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
}

bool WorkerProcess::count(DocumentKind kind, quint64 length, const RulesSnapshot &rules, int descriptor)
{
    const std::chrono::milliseconds time = m_program.countLimitFor(length);
    limitResources(length, time);
    const WorkerRequest request{m_requests + 1, kind, length, rules};
    if (!sendPacket(m_socket.get(), encode(request), descriptor)) {
        end(WorkerEnd::KilledFromOutside);
        return false;
    }
    m_state = State::Busy;
    ++m_requests;
    m_timer.start(time);
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

void WorkerProcess::limitResources(quint64 length, std::chrono::milliseconds time) const
{
    if (isMemoryLimited)
        limit(m_process, RLIMIT_AS, memoryOfAWorker + memoryPerByte * length);
    const auto seconds = static_cast<quint64>(std::chrono::ceil<std::chrono::seconds>(time).count());
    limit(m_process, RLIMIT_CPU, secondsUsed(m_process) + seconds + 1);
}

void WorkerProcess::readPackets()
{
    while (m_state != State::Ending) {
        const Result<Packet, PacketError> packet = receivePacketWithoutWaiting(m_socket.get());
        if (packet) {
            take(packet.value().message);
        } else if (packet.error() == PacketError::Closed) {
            // It is ending, and how it does says why; one that only hung up ends now.
            m_socketNotifier.setEnabled(false);
            ::kill(m_process, SIGKILL);
            return;
        } else if (packet.error() == PacketError::NothingYet) {
            return;
        } else {
            end(WorkerEnd::SpokeNonsense);
        }
    }
}

void WorkerProcess::take(const QByteArray &message)
{
    if (m_state == State::Starting) {
        const std::optional<WorkerGreeting> greeting = decodeGreeting(message);
        if (!greeting)
            return end(WorkerEnd::SpokeNonsense);
        m_timer.stop();
        m_state = State::Idle;
        return m_callbacks.ready(*this, greeting->sandbox);
    }
    const std::optional<WorkerReply> reply = decodeReply(message);
    if (m_state != State::Busy || !reply || reply->number != m_requests)
        return end(WorkerEnd::SpokeNonsense);
    if (!reply->counts && reply->counts.error().isOutOfMemory())
        return end(WorkerEnd::OutOfMemory);
    m_timer.stop();
    m_state = State::Idle;
    m_callbacks.answered(*this, reply->counts);
}

void WorkerProcess::collect()
{
    readPackets(); // its last words
    int status = 0;
    if (m_process == 0 || ::waitpid(m_process, &status, WNOHANG) != m_process)
        return;
    m_process = 0;
    m_state = State::Ending;
    m_timer.stop();
    m_processNotifier.setEnabled(false);
    m_socketNotifier.setEnabled(false);
    WorkerEnd end = WorkerEnd::Left;
    if (m_reason)
        end = *m_reason;
    else if (WIFSIGNALED(status))
        end = isFromOutside(WTERMSIG(status)) ? WorkerEnd::KilledFromOutside : WorkerEnd::Crashed;
    if (end != WorkerEnd::Dismissed) {
        countingServiceLog().notice(
            u"A worker {}; its wait status is {}", {publicly(causeText(end)), status});
    }
    m_callbacks.ended(*this, end);
}
