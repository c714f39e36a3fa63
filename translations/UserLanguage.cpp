// SPDX-License-Identifier: MIT
#include "translations/UserLanguage.h"

#include "platform/locale/CurrentLocale.h"

#include <QtGlobal>

namespace {

/// The language of a locale's name: that of "de_AT.UTF-8@euro" is "de".
QString languageOf(const QString &locale)
{
    qsizetype end = 0;
    while (end < locale.size() && !QStringView(u"_.@-").contains(locale[end]))
        ++end;
    return locale.left(end).toLower();
}

} // namespace

QStringList userLanguages()
{
    const char *const locale = wantedLocaleName();
    if (isCLocale(locale))
        return {};
    QStringList languages;
    for (const QString &name : qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts))
        languages.append(languageOf(name));
    return languages.isEmpty() ? QStringList{languageOf(QString::fromLocal8Bit(locale))} : languages;
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
