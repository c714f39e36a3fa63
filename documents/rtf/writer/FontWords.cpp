// SPDX-License-Identifier: MIT
#include "documents/rtf/writer/FontWords.h"

#include "documents/rtf/RtfLanguage.h"
#include "documents/rtf/writer/ExactValues.h"
#include "documents/rtf/writer/NearestNumber.h"
#include "documents/rtf/writer/RtfEscapes.h"

#include <unicode/uloc.h>

namespace {

constexpr int regularWeight = 400;
constexpr int boldWeight = 700;
constexpr int lightestBold = 550; // from here on bold is nearer than regular

QByteArray number(int value)
{
    return QByteArray::number(value);
}

/// The number that Windows has for the language or the nearest one above it, 0 where it has none.
int lcidOf(const QString &language)
{
    constexpr quint32 withoutSortOrder = 0xFFFF;
    char locale[ULOC_FULLNAME_CAPACITY];
    UErrorCode status = U_ZERO_ERROR;
    uloc_forLanguageTag(language.toLatin1().constData(), locale, sizeof locale, nullptr, &status);
    return U_SUCCESS(status) ? static_cast<int>(uloc_getLCID(locale) & withoutSortOrder) : 0;
}

} // namespace

qsizetype FontWords::indexOf(const QString &family)
{
    const auto found = m_indices.constFind(family);
    if (found != m_indices.cend())
        return *found;
    const qsizetype index = m_indices.size();
    m_groups.append("{\\f").append(QByteArray::number(index)).append("\\fnil\\fcharset0 ");
    appendRtfName(m_groups, family);
    m_groups.append(";}\n");
    m_indices.insert(family, index);
    return index;
}

QByteArray FontWords::wordsFor(const FontAttributes &font)
{
    const NearestNumber size = nearestNumber(font.pointSize, halfPointsPerPoint);
    const NearestNumber tracking = nearestNumber(font.tracking, twipsPerPoint);
    const NearestNumber offset = nearestNumber(font.baselineOffset, halfPointsPerPoint);
    QByteArray words =
        "\\f" + QByteArray::number(indexOf(font.family)) + "\\fs" + number(std::max(size.number, 1));
    if (font.weight >= lightestBold)
        words += "\\b";
    if (font.slant != FontSlant::Upright)
        words += "\\i";
    if (tracking.number != 0)
        words += "\\expndtw" + number(tracking.number);
    if (offset.number > 0)
        words += "\\up" + number(offset.number);
    else if (offset.number < 0)
        words += "\\dn" + number(-offset.number);
    const bool isExact = size.isExact && size.number > 0 && tracking.isExact && offset.isExact
        && (font.weight == regularWeight || font.weight == boldWeight) && font.slant != FontSlant::Oblique;
    return isExact ? words : words + m_exactValues.fontWord(font);
}

QByteArray FontWords::wordsFor(const QString &language)
{
    const auto found = m_languageWords.constFind(language);
    if (found != m_languageWords.cend())
        return *found;
    const int number = lcidOf(language);
    QByteArray words = number == 0 ? QByteArray() : "\\lang" + QByteArray::number(number);
    if (languageOfLcid(number) != language)
        words += m_exactValues.languageWord(language);
    m_languageWords.insert(language, words);
    return words;
}

QByteArray FontWords::wordsFor(const std::optional<FontAttributes> &font, const QString &language)
{
    QByteArray words = "\\plain";
    if (font)
        words += wordsFor(*font);
    if (!language.isEmpty())
        words += wordsFor(language);
    return words;
}

QByteArray FontWords::table() const
{
    return m_groups.isEmpty() ? QByteArray() : "{\\fonttbl\n" + m_groups + "}\n";
}
