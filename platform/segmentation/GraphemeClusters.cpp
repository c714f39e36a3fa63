// SPDX-License-Identifier: MIT
#include "platform/segmentation/GraphemeClusters.h"

#include "platform/segmentation/CodeUnitTable.h"

#include <unicode/uchar.h>
#include <unicode/uscript.h>

namespace {

qsizetype lengthOf(char32_t character)
{
    return character > 0xFFFF ? 2 : 1;
}

UGraphemeClusterBreak breakClass(char32_t character)
{
    return static_cast<UGraphemeClusterBreak>(
        u_getIntPropertyValue(static_cast<UChar32>(character), UCHAR_GRAPHEME_CLUSTER_BREAK));
}

// There are no pictographs outside of these ranges. Looking up the property is expensive.
bool mayBePictograph(char32_t character)
{
    return (character >= 0xA9 && character <= 0xAE) || (character >= 0x2000 && character < 0x3400)
        || character >= 0x1F000;
}

bool isPictograph(char32_t character)
{
    return mayBePictograph(character)
        && u_hasBinaryProperty(static_cast<UChar32>(character), UCHAR_EXTENDED_PICTOGRAPHIC);
}

bool isControl(UGraphemeClusterBreak value)
{
    return value == U_GCB_CONTROL || value == U_GCB_CR || value == U_GCB_LF;
}

// The conjuncts of these scripts are one cluster, as in ICU's root rules: consonant, virama, consonant.
bool hasConjuncts(char32_t character)
{
    if (character < 0x900 || character >= 0xD80)
        return false;
    UErrorCode status = U_ZERO_ERROR;
    switch (uscript_getScript(static_cast<UChar32>(character), &status)) {
    case USCRIPT_BENGALI:
    case USCRIPT_DEVANAGARI:
    case USCRIPT_GUJARATI:
    case USCRIPT_MALAYALAM:
    case USCRIPT_ORIYA:
    case USCRIPT_TELUGU:
        return true;
    default:
        return false;
    }
}

// The part of a character in a conjunct.
enum class Syllabic : quint8 { Other, Consonant, Virama, Transparent };

Syllabic syllabicPart(char32_t character, UGraphemeClusterBreak value)
{
    if (hasConjuncts(character)) {
        switch (u_getIntPropertyValue(static_cast<UChar32>(character), UCHAR_INDIC_SYLLABIC_CATEGORY)) {
        case U_INSC_CONSONANT:
            return Syllabic::Consonant;
        case U_INSC_VIRAMA:
            return Syllabic::Virama;
        default:
            break;
        }
    }
    const bool isTransparent = value == U_GCB_ZWJ
        || (value == U_GCB_EXTEND && u_getCombiningClass(static_cast<UChar32>(character)) != 0);
    return isTransparent ? Syllabic::Transparent : Syllabic::Other;
}

struct Properties {
    UGraphemeClusterBreak value;
    Syllabic syllabic;
    bool isPictograph;
};

Properties findProperties(char32_t character)
{
    const UGraphemeClusterBreak value = breakClass(character);
    return {value, syllabicPart(character, value), isPictograph(character)};
}

Properties propertiesOf(char32_t character)
{
    thread_local CodeUnitTable<Properties> known{[](char16_t unit) { return findProperties(unit); }};
    return character <= 0xFFFF ? known.at(static_cast<char16_t>(character)) : findProperties(character);
}

bool continuesSyllable(UGraphemeClusterBreak before, UGraphemeClusterBreak after)
{
    switch (before) {
    case U_GCB_L:
        return after == U_GCB_L || after == U_GCB_V || after == U_GCB_LV || after == U_GCB_LVT;
    case U_GCB_LV:
    case U_GCB_V:
        return after == U_GCB_V || after == U_GCB_T;
    case U_GCB_LVT:
    case U_GCB_T:
        return after == U_GCB_T;
    default:
        return false;
    }
}

// The state of the rules for the cluster so far.
struct Cluster {
    UGraphemeClusterBreak last;
    bool endsInPictograph; // possibly with Extend: the left side of GB11 before ZWJ
    int regionalIndicators;
    enum class Conjunct { None, Consonant, Linked } conjunct; // the part of one at the end

    [[nodiscard]] bool isContinuedBy(const Properties &next) const
    {
        const UGraphemeClusterBreak value = next.value;
        if (last == U_GCB_CR)
            return value == U_GCB_LF;
        if (isControl(last) || isControl(value))
            return false;
        if (value == U_GCB_EXTEND || value == U_GCB_ZWJ || value == U_GCB_SPACING_MARK
            || last == U_GCB_PREPEND)
            return true;
        if (last == U_GCB_ZWJ && endsInPictograph)
            return next.isPictograph;
        if (value == U_GCB_REGIONAL_INDICATOR)
            return last == U_GCB_REGIONAL_INDICATOR && regionalIndicators == 1;
        if (conjunct == Conjunct::Linked && next.syllabic == Syllabic::Consonant)
            return true;
        return continuesSyllable(last, value);
    }

    void add(const Properties &next)
    {
        if (next.value != U_GCB_EXTEND && next.value != U_GCB_ZWJ)
            endsInPictograph = next.isPictograph;
        else if (last == U_GCB_ZWJ)
            endsInPictograph = false; // GB11 allows one ZWJ, directly before the second pictograph
        regionalIndicators = next.value == U_GCB_REGIONAL_INDICATOR ? regionalIndicators + 1 : 0;
        if (next.syllabic == Syllabic::Consonant)
            conjunct = Conjunct::Consonant;
        else if (next.syllabic == Syllabic::Virama && conjunct != Conjunct::None)
            conjunct = Conjunct::Linked;
        else if (next.syllabic != Syllabic::Transparent)
            conjunct = Conjunct::None;
        last = next.value;
    }
};

} // namespace

QStringView firstUnits(QStringView text, qsizetype max)
{
    if (text.size() <= max)
        return text;
    return text.first(text[max].isLowSurrogate() ? max - 1 : max);
}

char32_t codePointAt(QStringView text, qsizetype position)
{
    const char16_t unit = text.utf16()[position];
    if (!QChar::isSurrogate(unit))
        return unit;
    if (QChar::isHighSurrogate(unit) && position + 1 < text.size()) {
        const char16_t low = text.utf16()[position + 1];
        if (QChar::isLowSurrogate(low))
            return QChar::surrogateToUcs4(unit, low);
    }
    return QChar::ReplacementCharacter;
}

qsizetype graphemeClusterEnd(QStringView text, qsizetype start)
{
    const char32_t first = codePointAt(text, start);
    qsizetype end = start + lengthOf(first);
    // Fast path for Latin text: the next character is below the first combining mark.
    constexpr char16_t firstMark = 0x300;
    if (first < firstMark && first != u'\r' && (end >= text.size() || text.utf16()[end] < firstMark)
        && first != 0xA9 && first != 0xAE)
        return end;
    Cluster cluster{U_GCB_OTHER, false, 0, Cluster::Conjunct::None};
    cluster.add(propertiesOf(first));
    while (end < text.size()) {
        const char32_t next = codePointAt(text, end);
        const Properties properties = propertiesOf(next);
        if (!cluster.isContinuedBy(properties))
            break;
        cluster.add(properties);
        end += lengthOf(next);
    }
    return end;
}

quint64 numberOfGraphemeClusters(QStringView text)
{
    quint64 clusters = 0;
    for (qsizetype start = 0; start < text.size(); start = graphemeClusterEnd(text, start))
        ++clusters;
    return clusters;
}

bool standsAlone(char16_t unit)
{
    if (QChar::isSurrogate(unit))
        return false;
    switch (breakClass(unit)) {
    case U_GCB_OTHER:
    case U_GCB_CONTROL:
    case U_GCB_LV: // Hangul syllables; only single vowels and finals continue them
    case U_GCB_LVT:
        return true;
    default:
        return false;
    }
}

bool continuesGraphemeCluster(char32_t character)
{
    if (character < 0x300)
        return false;
    switch (propertiesOf(character).value) {
    case U_GCB_EXTEND:
    case U_GCB_ZWJ:
    case U_GCB_SPACING_MARK:
        return true;
    default:
        return false;
    }
}

bool isNonspacing(char32_t character)
{
    constexpr char32_t nonJoiner = 0x200C;
    constexpr char32_t joiner = 0x200D;
    return character == nonJoiner || character == joiner
        || u_charType(static_cast<UChar32>(character)) == U_NON_SPACING_MARK;
}

bool isEmojiCluster(QStringView cluster)
{
    constexpr char16_t asText = 0xFE0E;
    constexpr char16_t asPicture = 0xFE0F;
    if (cluster.isEmpty() || cluster.utf16()[0] < 0x23)
        return false;
    const char32_t first = codePointAt(cluster, 0);
    const qsizetype next = lengthOf(first);
    if (next < cluster.size()) {
        const char16_t selector = cluster.utf16()[next];
        if (selector == asText)
            return false;
        if (selector == asPicture && u_hasBinaryProperty(static_cast<UChar32>(first), UCHAR_EMOJI))
            return true;
    }
    return mayBePictograph(first)
        && u_hasBinaryProperty(static_cast<UChar32>(first), UCHAR_EMOJI_PRESENTATION);
}

bool isDefaultIgnorable(char32_t character)
{
    return character >= 0xAD
        && u_hasBinaryProperty(static_cast<UChar32>(character), UCHAR_DEFAULT_IGNORABLE_CODE_POINT);
}
