// SPDX-License-Identifier: MIT
// Loads the document that it is given, or its standard input, and prints how long its text is, or why it
// could not be loaded.
#include "documents/loading/DocumentLoader.h"

#include <cstdio>
#include <unistd.h>

int main(int argumentCount, char **arguments)
{
    const auto document =
        argumentCount == 2 ? loadDocument(QByteArray(arguments[1])) : loadDocument(STDIN_FILENO);
    if (document)
        std::printf("%lld code units", static_cast<long long>(document.value().length()));
    else
        std::fputs(qPrintable(causeText(document.error())), stdout);
    return 0;
}
