// SPDX-License-Identifier: MIT
// The identifier of the user's current locale, as ICU names locales.
// Thread: any, as long as no other thread changes the environment or calls setlocale() meanwhile.
#pragma once

#include <QString>

/// "en_US" under LANG=en_US.UTF-8, "en_US_POSIX" under C or POSIX or nothing at all. The process's
/// LC_MESSAGES locale decides; where that is C (never set, or not installed), the first of LC_ALL,
/// LC_MESSAGES and LANG that is set and not empty. ICU itself looks once per process; this looks at every
/// call, so that a later setlocale() takes effect, at the price of a few string comparisons. Where a locale
/// is in force, a variable that changes takes effect with the next setlocale(), as for the C library.
QString currentLocaleIdentifier();
