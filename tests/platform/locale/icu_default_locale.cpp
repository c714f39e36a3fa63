// SPDX-License-Identifier: MIT
// Prints ICU's default locale in this environment.
#include <unicode/uloc.h>

#include <clocale>
#include <cstdio>

int main()
{
    std::setlocale(LC_ALL, "");
    std::puts(uloc_getDefault());
    return 0;
}
