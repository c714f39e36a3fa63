// SPDX-License-Identifier: MIT
// UserLanguage is the choice of the language of windows and messages from the variables of the environment,
// as gettext makes it. The rules of the counts depend on the locale alone (platform/locale/).
// Thread: any.
#pragma once

#include <QStringList>

/// The languages that the user understands, the preferred one first, as "de". LANGUAGE lists them; otherwise
/// it is that of the first of LC_ALL, LC_MESSAGES and LANG that is set. Empty in the locale C, where LANGUAGE
/// does not apply.
QStringList userLanguages();

/// The first of the user's languages that is among these or is English. Empty if it is English, or if there
/// is none.
QString userLanguageAmong(const QStringList &available);
