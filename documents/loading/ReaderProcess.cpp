// SPDX-License-Identifier: MIT
#include "documents/loading/ReaderProcess.h"

#include "documents/ReadingTime.h"
#include "documents/flat_text/FlatTextReader.h"
#include "platform/system/PacketSocket.h"
#include "platform/system/ProcessLimits.h"
#include "platform/system/Processes.h"
#include "platform/system/Sanitizers.h"
#include "platform/system/SealedMemory.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <utility>

namespace {

using namespace std::chrono_literals;
using Cause = DocumentError::Cause;

constexpr qint64 mebibyte = 1'048'576;
constexpr auto startTimeout = 60s;
/// Real seconds for each second of the processor: other work may share the machine.
constexpr int realTimeFactor = 20;

/// A copy with a number above those that the program's files get: another one would be replaced by them.
OwnedDescriptor duplicateAboveFilesOfProgram(int descriptor)
{
    return OwnedDescriptor(::fcntl(descriptor, F_DUPFD_CLOEXEC, ReaderMessages::resultMemory + 1));
}

Cause causeOfStart(int number)
{
    const bool isShortage = number == ENOMEM || number == EAGAIN || number == EMFILE || number == ENFILE;
    return isShortage ? Cause::NotEnoughMemory : Cause::NoReader;
}

} // namespace

ReaderLimits ReaderLimits::of(DocumentKind kind, qsizetype length)
{
    ReaderLimits limits;
    limits.processorTime = maxReadingTime(kind, length);
    limits.realTime = limits.processorTime * realTimeFactor;
    limits.memory = 1024 * mebibyte + 48 * length;
    limits.output = 256 * mebibyte + 48 * length; // a package can hold far more text than it has bytes
    return limits;
}

Result<ReaderProcess, Cause> ReaderProcess::start(const QByteArray &program)
{
    auto sockets = makeSocketPair();
    OwnedDescriptor result(::memfd_create("quillbay-text", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (!sockets || !result)
        return Cause::NotEnoughMemory;
    const OwnedDescriptor itsSocket = duplicateAboveFilesOfProgram(sockets->second.get());
    const OwnedDescriptor itsResult = duplicateAboveFilesOfProgram(result.get());
    if (!itsSocket || !itsResult)
        return Cause::NotEnoughMemory;
    ChildFiles files;
    files.open(STDIN_FILENO, "/dev/null", O_RDONLY).open(STDOUT_FILENO, "/dev/null", O_WRONLY);
    // Messages of the libraries are dropped, reports of a sanitizer are not.
    if (!isSanitized)
        files.open(STDERR_FILENO, "/dev/null", O_WRONLY);
    files.duplicate(itsSocket.get(), ReaderMessages::socket)
        .duplicate(itsResult.get(), ReaderMessages::resultMemory)
        .closeFrom(ReaderMessages::resultMemory + 1);
    std::optional<LaunchedChild> child = launchChild(program, {program}, files);
    if (!child)
        return causeOfStart(errno);
    return ReaderProcess(
        child->process, std::move(child->processFile), std::move(sockets->first), std::move(result));
}

ReaderProcess::ReaderProcess(ReaderProcess &&other) noexcept
    : m_process(std::exchange(other.m_process, 0))
    , m_processFile(std::move(other.m_processFile))
    , m_socket(std::move(other.m_socket))
    , m_result(std::move(other.m_result))
    , m_hasLandlock(other.m_hasLandlock)
    , m_wasKilled(other.m_wasKilled)
{
}

ReaderProcess &ReaderProcess::operator=(ReaderProcess &&other) noexcept
{
    std::swap(m_process, other.m_process);
    std::swap(m_processFile, other.m_processFile);
    std::swap(m_socket, other.m_socket);
    std::swap(m_result, other.m_result);
    std::swap(m_hasLandlock, other.m_hasLandlock);
    std::swap(m_wasKilled, other.m_wasKilled);
    return *this;
}

ReaderProcess::~ReaderProcess()
{
    if (m_process != 0)
        end();
}

int ReaderProcess::end()
{
    const pid_t process = std::exchange(m_process, 0);
    ::kill(process, SIGKILL);
    return reapChild(process).value_or(SIGSEGV); // without an exit status, nothing of it is trusted
}

bool ReaderProcess::hasEnded() const
{
    pollfd request{m_processFile.get(), POLLIN, 0};
    return ::poll(&request, 1, 0) > 0;
}

void ReaderProcess::kill() const
{
    // By its file: another thread may have reaped it, and its number may belong to another process.
    ::syscall(SYS_pidfd_send_signal, m_processFile.get(), SIGKILL, nullptr, 0);
}

bool ReaderProcess::receiveGreeting()
{
    if (!waitUntilReadable(m_socket.get(), startTimeout))
        return false;
    const Result<Packet, PacketError> packet = tryReceivePacket(m_socket.get());
    const auto greeting = packet ? decodeReaderGreeting(packet.value().message) : std::nullopt;
    m_hasLandlock = greeting && greeting->hasLandlock;
    return greeting.has_value();
}

std::optional<Cause> ReaderProcess::send(
    const ReaderRequest &request, QByteArrayView document, const ReaderLimits &limits)
{
    const auto memory = SealedMemory::copyOf(document);
    if (!memory || ::ftruncate(m_result.get(), limits.output) != 0
        || ::fcntl(m_result.get(), F_ADD_SEALS, F_SEAL_GROW | F_SEAL_SHRINK) != 0)
        return Cause::NotEnoughMemory;
    limitProcessorTime(m_process, limits.processorTime);
    if (!isSanitized)
        limitResource(m_process, RLIMIT_DATA, static_cast<quint64>(limits.memory));
    const bool isSent = sendPacket(m_socket.get(), encode(request), memory.value().descriptor());
    return isSent ? std::nullopt : std::optional(Cause::NoReader);
}

Result<AttributedString, DocumentError> ReaderProcess::read(
    const ReaderRequest &request, QByteArrayView document, const ReaderLimits &limits)
{
    if (const std::optional<Cause> failure = send(request, document, limits))
        return DocumentError(*failure, request.kind);
    if (!waitUntilReadable(m_socket.get(), limits.realTime)) {
        end();
        return DocumentError(Cause::TooComplex, request.kind);
    }
    const Result<Packet, PacketError> packet = tryReceivePacket(m_socket.get());
    if (!packet && packet.error() == PacketError::Closed)
        return DocumentError(causeOfEnd(), request.kind);
    const std::optional<ReaderReply> reply =
        packet ? decodeReaderReply(packet.value().message) : std::nullopt;
    if (reply && !reply->length)
        return reply->length.error();
    std::optional<AttributedString> text = reply ? receiveText(reply->length.value()) : std::nullopt;
    if (!text)
        return DocumentError(Cause::Damaged, request.kind);
    return *std::move(text);
}

DocumentError::Cause ReaderProcess::causeOfEnd()
{
    // It has closed its socket; a program that goes on is taken for one that has exited.
    const bool endsByItself = waitUntilReadable(m_processFile.get(), 1s);
    const int status = end();
    if (!endsByItself || !WIFSIGNALED(status))
        return Cause::Damaged;
    // Where memory runs out, Qt Pdf aborts its process, by one of several signals.
    const int signal = WTERMSIG(status);
    m_wasKilled = signal == SIGKILL || signal == SIGTERM || signal == SIGHUP || signal == SIGINT;
    return signal == SIGSEGV || signal == SIGBUS || signal == SIGFPE ? Cause::Damaged : Cause::TooComplex;
}

/// Absent where the program sends anything but a text, or could still change it.
std::optional<AttributedString> ReaderProcess::receiveText(quint64 length) const
{
    if (::fcntl(m_result.get(), F_ADD_SEALS, F_SEAL_WRITE | F_SEAL_SEAL) != 0)
        return std::nullopt;
    const auto memory = SealedMemory::receive(m_result.get());
    if (!memory || length > static_cast<quint64>(memory.value().size()))
        return std::nullopt;
    return readFlatText(memory.value().bytes().first(static_cast<qsizetype>(length)));
}
