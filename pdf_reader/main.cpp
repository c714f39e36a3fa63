// SPDX-License-Identifier: MIT
// quillbay-pdf-reader: PdfReader starts this program for each PDF file. It is the only one that links Qt Pdf,
// and writes the text of the file to standard output; PdfReaderRequest describes its arguments.
#include "pdf_reader/Confinement.h"
#include "pdf_reader/PdfPages.h"
#include "platform/system/Processes.h"
#include "platform/system/SealedMemory.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <new>
#include <span>

namespace {

bool writeAll(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(STDOUT_FILENO, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno != EINTR)
            return false;
        bytes = bytes.sliced(std::max<ssize_t>(written, 0));
    }
    return true;
}

std::optional<DocumentError::Cause> writePages(QByteArrayView document, qint64 length)
{
    bool isTooLong = false;
    const auto take = [&](const QString &text) {
        length -= text.size();
        isTooLong = length < 0;
        const auto *units = reinterpret_cast<const char *>(text.constData());
        const auto size = text.size() * static_cast<qsizetype>(sizeof(QChar));
        return !isTooLong && writeAll(QByteArrayView(units, size));
    };
    try {
        const std::optional<DocumentError::Cause> error = forEachPdfPage(document, take);
        return isTooLong ? DocumentError::Cause::TooComplex : error;
    } catch (const std::bad_alloc &) {
        return DocumentError::Cause::TooComplex;
    }
}

} // namespace

// Exits by _exit(): library destructors are not trusted, and the sandbox does not allow those of a sanitizer.
// NOLINTNEXTLINE(bugprone-exception-escape): without memory there is nothing to rescue
int main(int argumentCount, char **arguments)
{
    keepMemoryPrivate();
    const auto words = std::span<char *const>(arguments, static_cast<size_t>(argumentCount));
    const std::optional<PdfReaderRequest> request =
        requestFrom(words.subspan(std::min<size_t>(1, words.size())));
    if (request) {
        // Before the process reads a byte of the document.
        if (!confine(*request).isSufficient())
            ::_exit(exitStatusFor(DocumentError::Cause::NoSandbox));
        const auto document = SealedMemory::receive(STDIN_FILENO);
        if (document)
            ::_exit(exitStatusFor(writePages(document.value().bytes(), request->length)));
    }
    std::fputs(
        "quillbay-pdf-reader: is started by Quillbay's other programs only; use 'quillbay count FILE'\n",
        stderr);
    ::_exit(wrongUsageStatus);
}
