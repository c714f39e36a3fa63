// SPDX-License-Identifier: MIT
#include "documents/loading/SandboxedReader.h"

#include "documents/Lengths.h"
#include "documents/PlainTextReader.h"
#include "platform/locale/CurrentLocale.h"
#include "platform/logging/LogChannel.h"

#include <QFile>
#include <QFileInfo>

#include <new>
#include <utility>

namespace {

using Text = Result<AttributedString, DocumentError>;
using Cause = DocumentError::Cause;

Text decodePlainText(QByteArrayView bytes, const ReadOptions &options)
{
    const Result<PlainText, DocumentError> text = readPlainText(bytes, options.charset);
    if (!text)
        return text.error();
    return AttributedString(text.value().text);
}

} // namespace

QByteArray SandboxedReader::defaultProgram()
{
    const QString folder = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
    const QString name = QStringLiteral("/quillbay-document-reader");
    const QString installed = folder + QStringLiteral("/" LIBEXEC_FROM_BIN) + name;
    return QFile::encodeName(QFileInfo(folder + name).isExecutable() ? folder + name : installed);
}

SandboxedReader &SandboxedReader::shared()
{
    // Never destroyed: a thread may be reading when the process exits.
    static auto *const reader = new SandboxedReader;
    return *reader;
}

Text SandboxedReader::read(DocumentKind kind, QByteArrayView bytes, const ReadOptions &options,
    const std::optional<ReaderLimits> &limits)
{
    if (bytes.size() > maxDocumentLength)
        return DocumentError(Cause::TooLong, kind);
    if (options.stop.stop_requested())
        return DocumentError(Cause::Cancelled, kind);
    try {
        if (kind == DocumentKind::PlainText)
            return decodePlainText(bytes, options);
        const ReaderRequest request{.kind = kind,
            .length = static_cast<quint64>(bytes.size()),
            .charset = options.charset,
            .localeName = currentLocaleIdentifier().toLatin1()};
        return readInProgram(
            request, bytes, limits.value_or(ReaderLimits::of(kind, bytes.size())), options.stop);
    } catch (const std::bad_alloc &) {
        return DocumentError(Cause::NotEnoughMemory, kind);
    }
}

Text SandboxedReader::readInProgram(const ReaderRequest &request, QByteArrayView bytes,
    const ReaderLimits &limits, const std::stop_token &stop)
{
    const auto readWith = [&](ReaderProcess &process) -> std::optional<Text> {
        const std::stop_callback ending(stop, [&process] { process.kill(); });
        return process.receiveGreeting() ? std::optional(process.read(request, bytes, limits)) : std::nullopt;
    };
    DocumentError failure(Cause::NoReader, request.kind);
    // A program that waits may be killed just before it is needed, and one that reads may be killed too.
    bool isWorthRetrying = true;
    for (int attempt = 0; attempt < 2 && isWorthRetrying; ++attempt) {
        Result<ReaderProcess, Cause> started = m_pool.take();
        if (!started)
            return DocumentError(started.error(), request.kind);
        ReaderProcess process = std::move(started).value();
        std::optional<Text> result = readWith(process);
        if (stop.stop_requested())
            return DocumentError(Cause::Cancelled, request.kind);
        if (!result)
            continue;
        Text &text = *result;
        if (!process.hasLandlock() && (text || text.error().cause != Cause::NoSandbox))
            reportMissingLandlock();
        const bool wasKilled = process.wasKilled();
        m_pool.retire(std::move(process));
        if (text)
            return std::move(text);
        failure = text.error();
        isWorthRetrying = wasKilled || failure.cause == Cause::NoReader;
    }
    return failure;
}

void SandboxedReader::reportMissingLandlock()
{
    if (!m_hasReported.exchange(true))
        LogChannel::standard().notice(
            u"Documents are read under the system call filter alone, as this kernel has no Landlock");
}
