// SPDX-License-Identifier: MIT
// Reads a file and prints the number of bytes, or the error.
#include "platform/files/FileContents.h"

#include <cstdio>

int main(int argumentCount, char **arguments)
{
    const auto contents = argumentCount == 2 ? readFile(arguments[1]) : readDescriptor(0);
    if (contents)
        std::printf("%lld bytes", static_cast<long long>(contents.value().size()));
    else
        std::fputs(qPrintable(causeText(contents.error())), stdout);
    return 0;
}
