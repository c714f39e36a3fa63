// SPDX-License-Identifier: MIT
#include "command/NamedDocument.h"

#include "command/CommandWords.h"
#include "command/FileNames.h"
#include "platform/system/OwnedDescriptor.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

namespace {

using Contents = Result<QByteArray, FileError>;

constexpr int writerTimeout = 2000; // milliseconds

/// A shell's pipe is open at its other end, or was; one of a folder may wait for a writer for ever.
bool isPipeOfFolder(int descriptor)
{
    struct statfs status { };
    return ::fstatfs(descriptor, &status) == 0 && status.f_type != PIPEFS_MAGIC;
}

/// The first bytes in the pipe, perhaps none. Absent if nobody writes into it.
std::optional<QByteArray> waitForWriter(int pipe)
{
    pollfd request{pipe, POLLIN, 0};
    if (::poll(&request, 1, writerTimeout) != 0)
        return QByteArray();
    // Reading tells a writer that has written nothing yet (EAGAIN) from none.
    char byte = 0;
    const ssize_t length = ::read(pipe, &byte, 1);
    if (length == 0)
        return std::nullopt;
    return length == 1 ? QByteArray(1, byte) : QByteArray();
}

Contents readPipe(const QByteArray &name)
{
    // Non-blocking, since opening it would wait for a writer too.
    const OwnedDescriptor pipe(::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!pipe)
        return readFile(name); // fails with the cause
    QByteArray start;
    if (isPipeOfFolder(pipe.get())) {
        const std::optional<QByteArray> first = waitForWriter(pipe.get());
        if (!first)
            return FileError{FileError::Cause::NamedPipe};
        start = *first;
    }
    const Contents rest = readDescriptor(pipe.get());
    return rest && !start.isEmpty() ? start + rest.value() : rest;
}

bool isNamedAsLatex(const QByteArray &name)
{
    const QByteArray lower = name.toLower();
    return lower.endsWith(".tex") || lower.endsWith(".ltx") || lower.endsWith(".latex");
}

} // namespace

bool isNamedPipe(const QByteArray &name)
{
    struct stat status { };
    return ::stat(name.constData(), &status) == 0 && S_ISFIFO(status.st_mode);
}

Contents readNamed(const QByteArray &name)
{
    if (name == standardInputName)
        return readDescriptor(STDIN_FILENO);
    return isNamedPipe(name) ? readPipe(name) : readFile(name);
}

ReadAs ReadAs::fromWords(const CommandWords &words)
{
    return {.text = words.switches.contains("as-text"),
        .markdown = words.switches.contains("markdown"),
        .latex = words.switches.contains("latex")};
}

ReadOptions readOptionsFor(const QByteArray &name, const ReadAs &readAs)
{
    const bool isLatex = readAs.latex && (!readAs.markdown || isNamedAsLatex(name));
    const DocumentKind unlessLatex = readAs.markdown ? DocumentKind::Markdown : DocumentKind::PlainText;
    return {
        .readsPdf = true, .asText = readAs.text, .plainTextAs = isLatex ? DocumentKind::Latex : unlessLatex};
}

Result<AttributedString, DocumentError> loadNamedDocument(const QByteArray &name, const ReadAs &readAs)
{
    const ReadOptions options = readOptionsFor(name, readAs);
    if (name == standardInputName)
        return loadDocument(STDIN_FILENO, options);
    if (!isNamedPipe(name))
        return loadDocument(name, options);
    const Contents contents = readPipe(name);
    return contents ? readBytes(contents.value(), name, options) : DocumentError(contents.error());
}

void reportDocumentFailure(const QByteArray &name, const QString &cause)
{
    reportError(QString::fromUtf8(printableName(name) + ": " + printableName(cause.toUtf8())));
}
