// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfLanguage.h"

#include <unicode/uloc.h>

#include <string_view>

namespace {

constexpr std::string_view noLanguage = "und"; // BCP 47 for "undetermined"

} // namespace

QString languageOfLcid(qint32 lcid)
{
    if (lcid <= 0)
        return {};
    char locale[ULOC_FULLNAME_CAPACITY];
    char tag[ULOC_FULLNAME_CAPACITY];
    UErrorCode status = U_ZERO_ERROR;
    uloc_getLocaleForLCID(static_cast<quint32>(lcid), locale, sizeof locale, &status);
    const int32_t length = uloc_toLanguageTag(locale, tag, sizeof tag, true, &status);
    if (U_FAILURE(status) || length >= ULOC_FULLNAME_CAPACITY || tag == noLanguage)
        return {};
    return QString::fromLatin1(tag, length);
}

int lcidOfLanguage(const QString &tag)
{
    constexpr quint32 withoutSortOrder = 0xFFFF;
    char locale[ULOC_FULLNAME_CAPACITY];
    UErrorCode status = U_ZERO_ERROR;
    uloc_forLanguageTag(tag.toLatin1().constData(), locale, sizeof locale, nullptr, &status);
    return U_SUCCESS(status) ? static_cast<int>(uloc_getLCID(locale) & withoutSortOrder) : 0;
}
