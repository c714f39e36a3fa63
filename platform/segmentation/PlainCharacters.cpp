// SPDX-License-Identifier: MIT
#include "platform/segmentation/PlainCharacters.h"

#include "platform/segmentation/GraphemeClusters.h"

#include <unicode/uchar.h>
#include <unicode/uscript.h>

namespace {

constexpr char16_t fractionSlash = 0x2044;

// Shaped without regard to the forms and the order of letters.
bool isOfSimpleScript(char16_t unit)
{
    UErrorCode status = U_ZERO_ERROR;
    switch (uscript_getScript(unit, &status)) {
    case USCRIPT_COMMON:
    case USCRIPT_LATIN:
    case USCRIPT_GREEK:
    case USCRIPT_CYRILLIC:
    case USCRIPT_ARMENIAN:
    case USCRIPT_GEORGIAN:
    case USCRIPT_HAN:
    case USCRIPT_HIRAGANA:
    case USCRIPT_KATAKANA:
    case USCRIPT_BOPOMOFO:
    case USCRIPT_HANGUL:
    case USCRIPT_UNKNOWN:
        return true;
    default:
        return false;
    }
}

// Blocks of scripts that are written from right to left, with their unassigned and shared characters.
bool isInRightToLeftBlock(char16_t unit)
{
    return (unit >= 0x590 && unit < 0x900) || (unit >= 0xFB1D && unit < 0xFE00)
        || (unit >= 0xFE70 && unit <= 0xFEFF);
}

} // namespace

bool isPlainCharacter(char16_t unit)
{
    if (unit < 0x80)
        return unit >= u' ' && unit <= u'~';
    constexpr uint32_t visible =
        U_GC_L_MASK | U_GC_N_MASK | U_GC_P_MASK | U_GC_S_MASK | U_GC_ZS_MASK | U_GC_CO_MASK | U_GC_CN_MASK;
    return (U_GET_GC_MASK(unit) & visible) != 0 && unit != fractionSlash && !isInRightToLeftBlock(unit)
        && standsAlone(unit) && !u_hasBinaryProperty(unit, UCHAR_DEFAULT_IGNORABLE_CODE_POINT)
        && isOfSimpleScript(unit);
}

bool isWithoutMeaning(char16_t unit)
{
    return (U_GET_GC_MASK(unit) & (U_GC_CO_MASK | U_GC_CN_MASK)) != 0;
}
