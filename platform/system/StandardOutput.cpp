// SPDX-License-Identifier: MIT
#include "platform/system/StandardOutput.h"

#include <cstdio>

void print(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
}

int printText(const QByteArray &text)
{
    print(text);
    return std::fflush(stdout) == 0 ? 0 : 1;
}
