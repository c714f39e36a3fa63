// SPDX-License-Identifier: MIT
// CurrentLocale finds the identifier of the user's current locale, as ICU names locales.
// Thread: any, as long as no other thread changes the environment or calls setlocale() meanwhile.
#pragma once

#include <QString>

#include <string_view>

/// "en_US" under LANG=en_US.UTF-8, "en_US_POSIX" under C or POSIX or without a locale. The LC_MESSAGES locale
/// of the process decides; if that is C (never set, or not installed), the first of LC_ALL, LC_MESSAGES and
/// LANG that is set and not empty. Unlike ICU, this checks at every call, so that a later setlocale() takes
/// effect. If a locale is set, a changed variable takes effect with the next setlocale(), as for the C
/// library.
QString currentLocaleIdentifier();

/// What the environment asks for, installed or not: the first of LC_ALL, LC_MESSAGES and LANG that is set and
/// not empty, as "de_AT.UTF-8"; "C" if none is. Valid until the environment changes.
const char *wantedLocaleName();

/// Whether the name means the locale that is built into the C library.
bool isCLocale(std::string_view name);
