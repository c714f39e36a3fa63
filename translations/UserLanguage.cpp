// SPDX-License-Identifier: MIT
#include "translations/UserLanguage.h"

#include <QtGlobal>

namespace {

QString localeName()
{
    for (const char *const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const QString name = qEnvironmentVariable(variable); !name.isEmpty())
            return name;
    }
    return {};
}

/// The language of a locale's name: that of "de_AT.UTF-8@euro" is "de".
QString languageOf(const QString &locale)
{
    qsizetype end = 0;
    while (end < locale.size() && !QStringView(u"_.@-").contains(locale[end]))
        ++end;
    return locale.left(end).toLower();
}

bool isCLocale(const QString &name)
{
    return name.isEmpty() || name == u"POSIX" || languageOf(name) == u"c";
}

} // namespace

QStringList userLanguages()
{
    const QString locale = localeName();
    if (isCLocale(locale))
        return {};
    QStringList languages;
    for (const QString &name : qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts))
        languages.append(languageOf(name));
    return languages.isEmpty() ? QStringList{languageOf(locale)} : languages;
}

QString userLanguageAmong(const QStringList &available)
{
    for (const QString &language : userLanguages()) {
        if (language == u"en" || language == u"c")
            return {};
        if (available.contains(language))
            return language;
    }
    return {};
}
