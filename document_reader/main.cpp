// SPDX-License-Identifier: MIT
// quillbay-document-reader: SandboxedReader starts this program for each document. It reads that document in
// a sandbox and writes its text to a memory file; ReaderMessages describes the connection.
#include "document_reader/OneDocument.h"
#include "documents/loading/ReaderMessages.h"
#include "platform/system/Processes.h"

#include <QtGlobal>

#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdio>

namespace {

bool isStartedForADocument()
{
    int type = 0;
    socklen_t length = sizeof type;
    return ::getsockopt(ReaderMessages::socket, SOL_SOCKET, SO_TYPE, &type, &length) == 0
        && type == SOCK_SEQPACKET;
}

void forbidNewThreads()
{
    constexpr rlimit none{0, 0};
    ::setrlimit(RLIMIT_NPROC, &none);
}

} // namespace

// Exits by _exit(): library destructors are not trusted, and the sandbox does not allow those of a sanitizer.
// NOLINTNEXTLINE(bugprone-exception-escape): without memory there is nothing to rescue
int main(int argumentCount, char **)
{
    keepMemoryPrivate();
    if (argumentCount > 1 || !isStartedForADocument()) {
        std::fputs("quillbay-document-reader: is started by Quillbay's other programs only; "
                   "use 'quillbay count FILE'\n",
            stderr);
        ::_exit(ReaderMessages::wrongUsageStatus);
    }
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) {}); // they may be of a document
    loadEverythingThatReadersNeed();
    forbidNewThreads();
    // The owner limits the memory and the processor time before it sends the document.
    ::_exit(serveOneDocument(enterDocumentSandbox()));
}
