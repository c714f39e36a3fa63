// SPDX-License-Identifier: MIT
#include "platform/styled_text/pdf/PdfReader.h"

#include "platform/styled_text/pdf/PdfPages.h"

#include <QFile>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <new>

namespace {

using namespace std::chrono_literals;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isMemoryLimited = false; // sanitizers reserve terabytes of addresses
#else
constexpr bool isMemoryLimited = true;
#endif

constexpr qint64 mebibyte = 1'048'576;
constexpr auto timePerMebibyte = 10s;
// Real seconds for each one of the processor, on a machine with other work: a last resort.
constexpr int patience = 20;

// How the reading process ends; the others are the values of PdfError, and so much more.
constexpr int success = 0;
constexpr int firstError = 10;

class Descriptor {
public:
    explicit Descriptor(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor() { close(); }

    [[nodiscard]] int get() const { return m_descriptor; }
    void close()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
        m_descriptor = -1;
    }

private:
    int m_descriptor;
};

/// Bytes of writable memory that this process has.
qint64 memoryInUse()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    constexpr qsizetype dataColumn = 5;
    return file.readAll().split(' ').value(dataColumn).toLongLong() * ::sysconf(_SC_PAGESIZE);
}

void limit(__rlimit_resource resource, qint64 value)
{
    const rlimit wanted{static_cast<rlim_t>(value), static_cast<rlim_t>(value)};
    ::setrlimit(resource, &wanted);
}

/// In the reading process: takes from it what it does not need.
void confine(int pipe, qsizetype size, const PdfLimits &limits)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    // What Qt Pdf might print belongs nowhere, and nothing that the caller has open is its business.
    const int nowhere = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO})
        ::dup2(nowhere, standard);
    if (isMemoryLimited) {
        ::dup2(nowhere, STDERR_FILENO); // else a sanitizer's report
        limit(RLIMIT_DATA, memoryInUse() + limits.memory);
    }
    const auto kept = static_cast<unsigned>(pipe);
    if (kept > STDERR_FILENO + 1)
        ::close_range(STDERR_FILENO + 1, kept - 1, 0);
    ::close_range(kept + 1, ~0U, 0);
    const auto time = limits.time + timePerMebibyte * (size / mebibyte);
    limit(RLIMIT_CPU, time.count());
    limit(RLIMIT_FSIZE, 0);
    limit(RLIMIT_NPROC, 0);
    limit(RLIMIT_CORE, 0);
    ::alarm(static_cast<unsigned>(time.count() * patience));
}

bool writeWhole(int pipe, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(pipe, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno != EINTR)
            return false;
        bytes = bytes.sliced(std::max<ssize_t>(written, 0));
    }
    return true;
}

/// The exit status of the reading process.
int writePages(int pipe, QByteArrayView bytes, const PdfLimits &limits)
{
    qint64 left = limits.length;
    bool isTooLong = false;
    const auto take = [&](const QString &text) {
        left -= text.size();
        isTooLong = left < 0;
        const auto *units = reinterpret_cast<const char *>(text.constData());
        const auto length = text.size() * static_cast<qsizetype>(sizeof(QChar));
        return !isTooLong && writeWhole(pipe, QByteArrayView(units, length));
    };
    try {
        std::optional<PdfError> error = forEachPdfPage(bytes, take);
        if (isTooLong)
            error = PdfError::TooIntricate;
        return error ? firstError + static_cast<int>(*error) : success;
    } catch (const std::bad_alloc &) {
        return firstError + static_cast<int>(PdfError::TooIntricate);
    }
}

/// In the process of the caller; false where the text is longer than any may be.
bool readToEnd(int pipe, QString &text, qint64 longest)
{
    std::array<QChar, 32'768> piece;
    const auto bytes = reinterpret_cast<char *>(piece.data());
    size_t filled = 0; // bytes; a code unit may come in two halves
    for (;;) {
        const ssize_t length = ::read(pipe, bytes + filled, sizeof piece - filled);
        if (length < 0 && errno == EINTR)
            continue;
        if (length <= 0)
            return true;
        filled += static_cast<size_t>(length);
        const size_t units = filled / sizeof(QChar);
        text.append(piece.data(), static_cast<qsizetype>(units));
        if (text.size() > longest)
            return false;
        if (filled % sizeof(QChar) != 0)
            bytes[0] = bytes[filled - 1];
        filled %= sizeof(QChar);
    }
}

std::optional<PdfError> failureOf(int status)
{
    if (WIFEXITED(status)) {
        const int code = WEXITSTATUS(status);
        if (code == success)
            return std::nullopt;
        const bool isError =
            code >= firstError && code <= firstError + static_cast<int>(PdfError::NotEnoughMemory);
        return isError ? static_cast<PdfError>(code - firstError) : PdfError::Damaged;
    }
    // Where memory runs out, Qt Pdf ends its process on purpose, in one of several ways.
    const int signal = WTERMSIG(status);
    return signal == SIGSEGV || signal == SIGBUS || signal == SIGFPE ? PdfError::Damaged
                                                                     : PdfError::TooIntricate;
}

int statusOf(pid_t process)
{
    int status = 0;
    while (::waitpid(process, &status, 0) < 0)
        if (errno != EINTR)
            return SIGSEGV; // nobody knows how it ended: its text cannot be trusted
    return status;
}

Result<AttributedString, PdfError> readApart(QByteArrayView bytes, const PdfLimits &limits)
{
    std::array<int, 2> ends{-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return PdfError::NotEnoughMemory;
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);
    const pid_t process = ::fork();
    if (process < 0)
        return PdfError::NotEnoughMemory;
    if (process == 0) {
        // Where the caller has closed its standard streams, the pipe has got one of their numbers.
        const int pipe = ::fcntl(writing.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
        confine(pipe, bytes.size(), limits);
        ::_exit(writePages(pipe, bytes, limits));
    }
    writing.close();
    QString text;
    bool isMemoryShort = false;
    try {
        if (!readToEnd(reading.get(), text, limits.length))
            ::kill(process, SIGKILL);
    } catch (const std::bad_alloc &) {
        isMemoryShort = true;
        ::kill(process, SIGKILL);
    }
    const std::optional<PdfError> failure = failureOf(statusOf(process));
    if (isMemoryShort)
        return PdfError::NotEnoughMemory;
    if (failure)
        return *failure;
    return AttributedString(text);
}

} // namespace

Result<AttributedString, PdfError> readPdf(QByteArrayView bytes, const PdfLimits &limits)
{
    if (bytes.isEmpty())
        return PdfError::NotPdf;
    try {
        return readApart(bytes, limits);
    } catch (const std::bad_alloc &) {
        return PdfError::NotEnoughMemory;
    }
}
