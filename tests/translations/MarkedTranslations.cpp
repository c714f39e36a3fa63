// SPDX-License-Identifier: MIT
// Takes the place of the translations in a program of the tests: its texts are between marks.
#include "tests/translations/MarkedTexts.h"
#include "translations/Translations.h"

void installTranslations()
{
    static const auto &texts = *new MarkedTexts; // other threads may ask until the program exits
    static_cast<void>(texts);
}

void installQtTranslations() { }
