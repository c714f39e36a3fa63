// SPDX-License-Identifier: MIT
// Prints the current locale's identifier in this environment.
#include "platform/locale/CurrentLocale.h"

#include <clocale>
#include <cstdio>

int main()
{
    std::setlocale(LC_ALL, "");
    std::puts(currentLocaleIdentifier().toLatin1().constData());
    return 0;
}
