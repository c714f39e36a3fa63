// SPDX-License-Identifier: MIT
#include "platform/locale/CurrentLocale.h"

#include <unicode/uloc.h>

#include <clocale>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

// The name of the current locale, in the POSIX form language_REGION.charset@variant.
const char *posixLocaleName()
{
    const char *name = std::setlocale(LC_MESSAGES, nullptr);
    if (name && !isCLocale(name))
        return name;
    return wantedLocaleName();
}

QString identifierFor(std::string_view posixName)
{
    if (isCLocale(posixName))
        return QStringLiteral("en_US_POSIX");
    // ICU knows "sr_RS.UTF-8@latin" as "sr_RS@latin".
    std::string name(posixName);
    const size_t charset = name.find('.');
    if (charset != std::string::npos)
        name.erase(charset, name.find('@', charset) - charset);

    char identifier[ULOC_FULLNAME_CAPACITY];
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length = uloc_canonicalize(name.c_str(), identifier, sizeof identifier, &status);
    // A name that is too long cannot be that of a locale.
    if (U_FAILURE(status) || length >= static_cast<int32_t>(sizeof identifier))
        return QStringLiteral("en_US_POSIX");
    return QString::fromLatin1(identifier, length);
}

} // namespace

const char *wantedLocaleName()
{
    for (const char *const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char *const value = std::getenv(variable);
        if (value && *value)
            return value;
    }
    return "C";
}

bool isCLocale(std::string_view name)
{
    return name.empty() || name == "C" || name == "POSIX" || name.starts_with("C.");
}

QString currentLocaleIdentifier()
{
    thread_local std::string lastName;
    thread_local QString lastIdentifier;
    const std::string_view name = posixLocaleName();
    if (lastIdentifier.isEmpty() || name != lastName) {
        lastName = name;
        lastIdentifier = identifierFor(name);
    }
    return lastIdentifier;
}
