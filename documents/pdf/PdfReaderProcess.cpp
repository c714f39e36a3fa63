// SPDX-License-Identifier: MIT
#include "documents/pdf/PdfReaderProcess.h"

#include "platform/system/SealedMemory.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

/// Above the standard streams: where the caller has closed those, a new descriptor may have got one of their
/// numbers.
OwnedDescriptor raised(int descriptor)
{
    return OwnedDescriptor(::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

DocumentError::Cause errorOfSpawn(int number)
{
    const bool isShortage = number == ENOMEM || number == EAGAIN || number == EMFILE || number == ENFILE;
    return isShortage ? DocumentError::Cause::NotEnoughMemory : DocumentError::Cause::NoPdfReader;
}

std::optional<DocumentError::Cause> failureOf(int status)
{
    if (WIFEXITED(status))
        return errorOfExitStatus(WEXITSTATUS(status));
    // Where memory runs out, Qt Pdf ends its process on purpose, in one of several ways.
    const int signal = WTERMSIG(status);
    return signal == SIGSEGV || signal == SIGBUS || signal == SIGFPE ? DocumentError::Cause::Damaged
                                                                     : DocumentError::Cause::TooComplex;
}

} // namespace

Result<PdfReaderProcess, DocumentError::Cause> PdfReaderProcess::start(
    const QByteArray &program, QByteArrayView bytes, const PdfReaderOrder &order)
{
    const auto memory = SealedMemory::copyOf(bytes);
    std::array<int, 2> ends{-1, -1};
    if (!memory || ::pipe2(ends.data(), O_CLOEXEC) != 0)
        return DocumentError::Cause::NotEnoughMemory;
    OwnedDescriptor reading(ends[0]);
    const OwnedDescriptor writing(ends[1]);
    const OwnedDescriptor input = raised(memory.value().descriptor());
    const OwnedDescriptor output = raised(writing.get());
    if (!input || !output)
        return DocumentError::Cause::NotEnoughMemory;
    ChildFiles files;
    files.duplicate(input.get(), STDIN_FILENO).duplicate(output.get(), STDOUT_FILENO);
    // What Qt Pdf might print belongs nowhere, a sanitizer's report does.
    if (!isSanitized)
        files.open(STDERR_FILENO, "/dev/null", O_WRONLY);
    files.closeFrom(STDERR_FILENO + 1);
    std::optional<LaunchedChild> child =
        launchChild(program, QByteArrayList{program} + argumentsOf(order), files);
    if (!child)
        return errorOfSpawn(errno);
    return PdfReaderProcess(std::move(*child), std::move(reading), order);
}

PdfReaderProcess::PdfReaderProcess(LaunchedChild child, OwnedDescriptor pipe, const PdfReaderOrder &order)
    : m_process(child.process)
    , m_pipe(std::move(pipe))
    , m_processFile(std::move(child.processFile))
    , m_longest(order.length)
    , m_deadline(Clock::now() + order.realTime)
{
}

PdfReaderProcess::PdfReaderProcess(PdfReaderProcess &&other) noexcept
    : m_process(std::exchange(other.m_process, 0))
    , m_pipe(std::move(other.m_pipe))
    , m_processFile(std::move(other.m_processFile))
    , m_longest(other.m_longest)
    , m_deadline(other.m_deadline)
{
}

PdfReaderProcess::~PdfReaderProcess()
{
    if (m_process != 0)
        end(true);
}

Result<QString, DocumentError::Cause> PdfReaderProcess::readText()
{
    QString text;
    const bool isWhole = readToEnd(text) && isReadyInTime(m_processFile.get());
    const std::optional<DocumentError::Cause> failure = failureOf(end(!isWhole));
    if (failure)
        return *failure;
    if (!isWhole)
        return DocumentError::Cause::TooComplex;
    return text;
}

bool PdfReaderProcess::isReadyInTime(int descriptor) const
{
    pollfd waiting{descriptor, POLLIN, 0};
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(m_deadline - Clock::now());
        if (left.count() <= 0)
            return false;
        constexpr qint64 longestWait = 1'000'000; // milliseconds, as poll() takes an int
        const int ready = ::poll(&waiting, 1, static_cast<int>(std::min<qint64>(left.count(), longestWait)));
        if (ready > 0)
            return true;
        if (ready < 0 && errno != EINTR)
            return false;
    }
}

bool PdfReaderProcess::readToEnd(QString &text) const
{
    std::array<QChar, 32'768> piece;
    const auto bytes = reinterpret_cast<char *>(piece.data());
    size_t filled = 0; // bytes; a code unit may come in two halves
    while (isReadyInTime(m_pipe.get())) {
        const ssize_t length = ::read(m_pipe.get(), bytes + filled, sizeof piece - filled);
        if (length < 0 && errno == EINTR)
            continue;
        if (length <= 0)
            return true;
        filled += static_cast<size_t>(length);
        const size_t units = filled / sizeof(QChar);
        text.append(piece.data(), static_cast<qsizetype>(units));
        if (text.size() > m_longest)
            return false;
        if (filled % sizeof(QChar) != 0)
            bytes[0] = bytes[filled - 1];
        filled %= sizeof(QChar);
    }
    return false;
}

int PdfReaderProcess::end(bool isKilled)
{
    const pid_t process = std::exchange(m_process, 0);
    if (isKilled)
        ::kill(process, SIGKILL);
    int status = 0;
    while (::waitpid(process, &status, 0) < 0)
        if (errno != EINTR)
            return SIGSEGV; // nobody knows how it ended: its text cannot be trusted
    return status;
}
