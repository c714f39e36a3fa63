// SPDX-License-Identifier: MIT
#include "platform/segmentation/Segmenter.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

bool isLetterOrDigit(char32_t character)
{
    const auto codePoint = static_cast<UChar32>(character);
    constexpr uint32_t countedCategories = U_GC_L_MASK | U_GC_ND_MASK | U_GC_NL_MASK;
    const uint32_t category = U_GET_GC_MASK(codePoint);
    if (category & countedCategories)
        return true;
    // Includes alphabetic symbols such as circled letters, but not alphabetic marks.
    return !(category & U_GC_M_MASK) && u_isUAlphabetic(codePoint);
}

bool isEnglishWordOfOneLetter(char16_t unit)
{
    constexpr QStringView letters = u"aAiIoOxX";
    return letters.contains(unit);
}

bool isWord(QStringView segment)
{
    const char16_t *units = segment.utf16();
    for (qsizetype i = 0; i < segment.size();) {
        char32_t character;
        U16_NEXT(units, i, segment.size(), character);
        if (isLetterOrDigit(character))
            return true;
    }
    return false;
}
