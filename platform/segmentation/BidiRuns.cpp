// SPDX-License-Identifier: MIT
#include "platform/segmentation/BidiRuns.h"

#include <unicode/ubidi.h>

#include <algorithm>

namespace {

// Whether a code unit may belong to a character of a right-to-left script or to a control that changes the
// direction. May be true too often, but never false by mistake.
bool mayChangeDirection(char16_t unit)
{
    if (unit < 0x590)
        return false;
    if (unit < 0x2000)
        return unit < 0x900;
    if (unit < 0x2070)
        return unit == 0x200F || (unit >= 0x202A && unit <= 0x202E) || unit >= 0x2066;
    const bool isRightToLeftPlane = unit == 0xD802 || unit == 0xD803 || unit == 0xD83A || unit == 0xD83B;
    const bool isPresentationForm = (unit >= 0xFB1D && unit < 0xFE00) || (unit >= 0xFE70 && unit < 0xFEFF);
    return isRightToLeftPlane || isPresentationForm;
}

UBiDiLevel levelOf(BidiRuns::Base base)
{
    switch (base) {
    case BidiRuns::Base::LeftToRight:
        return 0;
    case BidiRuns::Base::RightToLeft:
        return 1;
    case BidiRuns::Base::FirstStrongCharacter:
        break;
    }
    return UBIDI_DEFAULT_LTR;
}

} // namespace

struct BidiRuns::Implementation {
    std::unique_ptr<UBiDi, decltype(&ubidi_close)> bidi{ubidi_open(), &ubidi_close};
    const UBiDiLevel *levels = nullptr; // null if the whole paragraph has the base direction
    qsizetype length = 0;
    bool isRightToLeft = false;
};

BidiRuns::BidiRuns()
    : m_implementation(std::make_unique<Implementation>())
{
}

BidiRuns::BidiRuns(BidiRuns &&) noexcept = default;
BidiRuns &BidiRuns::operator=(BidiRuns &&) noexcept = default;
BidiRuns::~BidiRuns() = default;

void BidiRuns::setParagraph(QStringView text, Base base)
{
    Implementation &mine = *m_implementation;
    mine.length = text.size();
    mine.levels = nullptr;
    mine.isRightToLeft = base == Base::RightToLeft;
    const char16_t *units = text.utf16();
    const bool isSimple = !mine.isRightToLeft && std::none_of(units, units + text.size(), mayChangeDirection);
    if (isSimple || text.isEmpty() || text.size() > INT32_MAX)
        return;
    UErrorCode status = U_ZERO_ERROR;
    ubidi_setPara(mine.bidi.get(), units, static_cast<int32_t>(text.size()), levelOf(base), nullptr, &status);
    const UBiDiLevel *levels = ubidi_getLevels(mine.bidi.get(), &status);
    if (U_FAILURE(status))
        return; // out of memory: uses the base direction for everything
    mine.levels = levels;
    mine.isRightToLeft = ubidi_getParaLevel(mine.bidi.get()) & 1;
}

bool BidiRuns::isParagraphRightToLeft() const
{
    return m_implementation->isRightToLeft;
}

BidiRuns::Run BidiRuns::runAt(qsizetype position) const
{
    const Implementation &mine = *m_implementation;
    if (!mine.levels)
        return {mine.length, mine.isRightToLeft};
    qsizetype end = position + 1;
    while (end < mine.length && mine.levels[end] == mine.levels[position])
        ++end;
    return {end, (mine.levels[position] & 1) != 0};
}
