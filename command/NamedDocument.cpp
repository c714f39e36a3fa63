// SPDX-License-Identifier: MIT
#include "command/NamedDocument.h"

#include "command/FileNames.h"
#include "documents/loading/DocumentLoader.h"

#include <unistd.h>

#include <cstdio>

Result<AttributedString, DocumentError> loadNamedDocument(const QByteArray &name, ReadAs readAs)
{
    const ReadOptions options{.readsPdf = true, .asText = readAs == ReadAs::Text};
    return name == standardInputName ? loadDocument(STDIN_FILENO, options) : loadDocument(name, options);
}

void reportDocumentFailure(const QByteArray &name, const QString &cause)
{
    // Keeps the order where both streams go to the same terminal or file.
    std::fflush(stdout);
    std::fprintf(stderr, "quillbay: %s: %s\n", printableName(name).constData(),
        printableName(cause.toUtf8()).constData());
}
