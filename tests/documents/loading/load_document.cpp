// SPDX-License-Identifier: MIT
// Loads the document that it is given, or its standard input, and prints how long its text is, or why it
// could not be loaded. A second word: "pdf" reads PDF files too, "text" reads any
// file as text, "wait" waits until it is killed.
#include "documents/loading/DocumentLoader.h"

#include <cstdio>
#include <string_view>
#include <unistd.h>

int main(int argumentCount, char **arguments)
{
    const std::string_view word = argumentCount > 2 ? arguments[2] : "";
    const ReadOptions options{.readsPdf = word == "pdf", .asText = word == "text"};
    const auto document = argumentCount > 1 ? loadDocument(QByteArray(arguments[1]), options)
                                            : loadDocument(STDIN_FILENO, options);
    if (document)
        std::printf("%lld code units", static_cast<long long>(document.value().length()));
    else
        std::fputs(qPrintable(causeText(document.error())), stdout);
    std::fflush(stdout);
    if (word == "wait")
        ::pause();
    return 0;
}
