// SPDX-License-Identifier: MIT
#include "documents/pdf/PdfReader.h"

#include "documents/pdf/PdfReaderRequest.h"
#include "platform/system/OwnedDescriptor.h"
#include "platform/system/Processes.h"
#include "platform/system/SealedMemory.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <new>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr qint64 mebibyte = 1'048'576;
constexpr auto timePerMebibyte = 10s;

PdfReaderRequest requestFor(qsizetype size, const PdfLimits &limits)
{
    const std::chrono::seconds time = limits.time + timePerMebibyte * (size / mebibyte);
    return {.processorTime = time,
        .realTime = time * limits.timeout,
        .memory = limits.memory,
        .length = limits.length};
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

/// A copy with a number above the standard streams: where the caller has closed those, a new descriptor may
/// have one of their numbers.
OwnedDescriptor duplicateAboveStandardStreams(int descriptor)
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
    // Where memory runs out, Qt Pdf aborts its process, by one of several signals.
    const int signal = WTERMSIG(status);
    return signal == SIGSEGV || signal == SIGBUS || signal == SIGFPE ? DocumentError::Cause::Damaged
                                                                     : DocumentError::Cause::TooComplex;
}

/// One run of the program that reads PDF files. The program ends with the thread that started it.
class PdfReaderProcess {
public:
    /// Starts the program on a copy of the bytes.
    static Result<PdfReaderProcess, DocumentError::Cause> start(
        const QByteArray &program, QByteArrayView bytes, const PdfReaderRequest &request);

    PdfReaderProcess(PdfReaderProcess &&other) noexcept;
    PdfReaderProcess &operator=(PdfReaderProcess &&) = delete;
    /// Kills the program if it still runs.
    ~PdfReaderProcess();

    /// Waits for the whole text and the exit of the program. Kills it where it exceeds the real time or the
    /// length of its request.
    Result<QString, DocumentError::Cause> readText();

private:
    using Clock = std::chrono::steady_clock;

    PdfReaderProcess(LaunchedChild child, OwnedDescriptor pipe, const PdfReaderRequest &request);
    [[nodiscard]] bool isReadyInTime(int descriptor) const;
    /// False where the program exceeds its time or its length.
    bool readToEnd(QString &text) const;
    /// The status of waitpid().
    int end(bool isKilled);

    pid_t m_process; ///< 0 once it has been waited for
    OwnedDescriptor m_pipe; ///< the reading end
    OwnedDescriptor m_processFile; ///< readable once the program has exited
    qint64 m_maxLength;
    Clock::time_point m_deadline;
};

Result<PdfReaderProcess, DocumentError::Cause> PdfReaderProcess::start(
    const QByteArray &program, QByteArrayView bytes, const PdfReaderRequest &request)
{
    const auto memory = SealedMemory::copyOf(bytes);
    std::array<int, 2> ends{-1, -1};
    if (!memory || ::pipe2(ends.data(), O_CLOEXEC) != 0)
        return DocumentError::Cause::NotEnoughMemory;
    OwnedDescriptor reading(ends[0]);
    const OwnedDescriptor writing(ends[1]);
    const OwnedDescriptor input = duplicateAboveStandardStreams(memory.value().descriptor());
    const OwnedDescriptor output = duplicateAboveStandardStreams(writing.get());
    if (!input || !output)
        return DocumentError::Cause::NotEnoughMemory;
    ChildFiles files;
    files.duplicate(input.get(), STDIN_FILENO).duplicate(output.get(), STDOUT_FILENO);
    // Messages of Qt Pdf are dropped, reports of a sanitizer are not.
    if (!isSanitized)
        files.open(STDERR_FILENO, "/dev/null", O_WRONLY);
    files.closeFrom(STDERR_FILENO + 1);
    std::optional<LaunchedChild> child =
        launchChild(program, QByteArrayList{program} + argumentsOf(request), files);
    if (!child)
        return errorOfSpawn(errno);
    return PdfReaderProcess(std::move(*child), std::move(reading), request);
}

PdfReaderProcess::PdfReaderProcess(LaunchedChild child, OwnedDescriptor pipe, const PdfReaderRequest &request)
    : m_process(child.process)
    , m_pipe(std::move(pipe))
    , m_processFile(std::move(child.processFile))
    , m_maxLength(request.length)
    , m_deadline(Clock::now() + request.realTime)
{
}

PdfReaderProcess::PdfReaderProcess(PdfReaderProcess &&other) noexcept
    : m_process(std::exchange(other.m_process, 0))
    , m_pipe(std::move(other.m_pipe))
    , m_processFile(std::move(other.m_processFile))
    , m_maxLength(other.m_maxLength)
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
    return waitUntilReadable(
        descriptor, std::chrono::ceil<std::chrono::milliseconds>(m_deadline - Clock::now()));
}

bool PdfReaderProcess::readToEnd(QString &text) const
{
    std::array<QChar, 32'768> piece;
    auto *const bytes = reinterpret_cast<char *>(piece.data());
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
        if (text.size() > m_maxLength)
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
    return reapChild(process).value_or(SIGSEGV); // without an exit status, its text is not trusted
}

constexpr qsizetype maxShare = 20; // one in so many

bool isNoCharacter(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Other_Control || category == QChar::Other_NotAssigned
        || category == QChar::Other_Surrogate;
}

} // namespace

QByteArray pdfReaderProgram()
{
    const QString folder = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
    const QString name = QStringLiteral("/quillbay-pdf-reader");
    const QString installed = folder + QStringLiteral("/" LIBEXEC_FROM_BIN) + name;
    return QFile::encodeName(QFileInfo(folder + name).isExecutable() ? folder + name : installed);
}

Result<AttributedString, DocumentError> readPdf(
    QByteArrayView bytes, const PdfLimits &limits, const QByteArray &program)
{
    if (bytes.isEmpty())
        return DocumentError(DocumentError::Cause::WrongKind, DocumentKind::Pdf);
    try {
        auto process = PdfReaderProcess::start(program, bytes, requestFor(bytes.size(), limits));
        if (!process)
            return DocumentError(process.error(), DocumentKind::Pdf);
        Result<QString, DocumentError::Cause> text = std::move(process).value().readText();
        if (!text)
            return DocumentError(text.error(), DocumentKind::Pdf);
        return AttributedString(std::move(text).value());
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Pdf);
    }
}

bool isUnmapped(QStringView text)
{
    qsizetype characters = 0;
    qsizetype unmapped = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t character = text[i].unicode();
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            character = QChar::surrogateToUcs4(text[i], text[i + 1]);
            ++i;
        }
        if (QChar::isSpace(character))
            continue;
        ++characters;
        unmapped += isNoCharacter(character) ? 1 : 0;
    }
    return unmapped * maxShare > characters;
}
