// SPDX-License-Identifier: MIT
#include "command/NamedDocument.h"

#include "command/FileNames.h"
#include "documents/loading/PdfLoader.h"

#include <unistd.h>

#include <cstdio>

Result<AttributedString, DocumentError> loadNamedDocument(const QByteArray &name)
{
    return name == standardInputName ? loadDocumentOrPdf(STDIN_FILENO) : loadDocumentOrPdf(name);
}

void tellDocumentFailure(const QByteArray &name, const QString &cause)
{
    // What was printed so far comes first where both streams end in one place.
    std::fflush(stdout);
    std::fprintf(stderr, "quillbay: %s: %s\n", printableName(name).constData(),
        printableName(cause.toUtf8()).constData());
}
