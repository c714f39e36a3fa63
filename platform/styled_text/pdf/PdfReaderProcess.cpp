// SPDX-License-Identifier: MIT
#include "platform/styled_text/pdf/PdfReaderProcess.h"

#include "platform/connection/SealedMemory.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>
#include <vector>

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

class FileActions {
public:
    FileActions(int input, int output)
    {
        ::posix_spawn_file_actions_init(&m_actions);
        ::posix_spawn_file_actions_adddup2(&m_actions, input, STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&m_actions, output, STDOUT_FILENO);
        // What Qt Pdf might print belongs nowhere, a sanitizer's report does.
        if (!isSanitized)
            ::posix_spawn_file_actions_addopen(&m_actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_addclosefrom_np(&m_actions, STDERR_FILENO + 1);
    }
    FileActions(const FileActions &) = delete;
    FileActions &operator=(const FileActions &) = delete;
    ~FileActions() { ::posix_spawn_file_actions_destroy(&m_actions); }

    [[nodiscard]] const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions{};
};

// The caller may block and ignore signals that the program must obey.
class Attributes {
public:
    Attributes()
    {
        sigset_t none;
        sigset_t all;
        ::sigemptyset(&none);
        ::sigfillset(&all);
        ::posix_spawnattr_init(&m_attributes);
        ::posix_spawnattr_setsigmask(&m_attributes, &none);
        ::posix_spawnattr_setsigdefault(&m_attributes, &all);
        ::posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    Attributes(const Attributes &) = delete;
    Attributes &operator=(const Attributes &) = delete;
    ~Attributes() { ::posix_spawnattr_destroy(&m_attributes); }

    [[nodiscard]] const posix_spawnattr_t *get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes{};
};

/// 0, or an errno.
int spawn(pid_t &process, QByteArray program, QByteArrayList arguments, int input, int output)
{
    std::vector<char *> words{program.data()};
    for (QByteArray &argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);
    return ::posix_spawn(&process, program.constData(), FileActions(input, output).get(), Attributes().get(),
        words.data(), environ);
}

PdfError errorOfSpawn(int number)
{
    return number == ENOMEM || number == EAGAIN ? PdfError::NotEnoughMemory : PdfError::NoReader;
}

std::optional<PdfError> failureOf(int status)
{
    if (WIFEXITED(status))
        return errorOfExitStatus(WEXITSTATUS(status));
    // Where memory runs out, Qt Pdf ends its process on purpose, in one of several ways.
    const int signal = WTERMSIG(status);
    return signal == SIGSEGV || signal == SIGBUS || signal == SIGFPE ? PdfError::Damaged
                                                                     : PdfError::TooIntricate;
}

} // namespace

Result<PdfReaderProcess, PdfError> PdfReaderProcess::started(
    const QByteArray &program, QByteArrayView bytes, const PdfReaderOrder &order)
{
    const auto memory = SealedMemory::copyOf(bytes);
    std::array<int, 2> ends{-1, -1};
    if (!memory || ::pipe2(ends.data(), O_CLOEXEC) != 0)
        return PdfError::NotEnoughMemory;
    OwnedDescriptor reading(ends[0]);
    const OwnedDescriptor writing(ends[1]);
    const OwnedDescriptor input = raised(memory.value().descriptor());
    const OwnedDescriptor output = raised(writing.get());
    if (!input || !output)
        return PdfError::NotEnoughMemory;
    pid_t process = 0;
    const int failure = spawn(process, program, argumentsOf(order), input.get(), output.get());
    if (failure != 0)
        return errorOfSpawn(failure);
    return PdfReaderProcess(process, std::move(reading), order);
}

PdfReaderProcess::PdfReaderProcess(pid_t process, OwnedDescriptor pipe, const PdfReaderOrder &order)
    : m_process(process)
    , m_pipe(std::move(pipe))
    // The header of pidfd_open() cannot be used from C++ everywhere.
    , m_processFile(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)))
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

Result<QString, PdfError> PdfReaderProcess::text()
{
    if (!m_processFile)
        return PdfError::NotEnoughMemory;
    QString text;
    const bool isWhole = readToEnd(text) && isReadyInTime(m_processFile.get());
    const std::optional<PdfError> failure = failureOf(end(!isWhole));
    if (failure)
        return *failure;
    if (!isWhole)
        return PdfError::TooIntricate;
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
