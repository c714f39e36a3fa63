// SPDX-License-Identifier: MIT
#include "platform/text_layout/AsciiAdvances.h"

// Compiles the rest of this file once for every instruction set.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "platform/text_layout/AsciiAdvances.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace AsciiAdvanceKernels::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR
qsizetype addBlocks(
    const char16_t * /*units*/, qsizetype /*count*/, const int * /*advances*/, int /*room*/, int & /*sum*/)
{
    return 0;
}
#else
namespace hn = hwy::HWY_NAMESPACE;

qsizetype addBlocks(const char16_t *units, qsizetype count, const int *advances, int room, int &sum)
{
    const hn::ScalableTag<int32_t> tag;
    const hn::Rebind<uint16_t, hn::ScalableTag<int32_t>> unitTag;
    const auto *const source = reinterpret_cast<const uint16_t *>(units);
    const auto lanes = static_cast<qsizetype>(hn::Lanes(tag));
    const auto space = hn::Set(tag, ' ');
    const auto lastAscii = hn::Set(tag, 0x7F);
    qsizetype at = 0;
    for (; at + lanes <= count; at += lanes) {
        const auto own = hn::PromoteTo(tag, hn::LoadU(unitTag, source + at));
        const auto next = hn::PromoteTo(tag, hn::LoadU(unitTag, source + at + 1));
        const auto isOther = hn::Or(hn::Lt(own, space), hn::Gt(hn::Or(own, next), lastAscii));
        if (!hn::AllFalse(tag, isOther))
            break;
        // The class of an ASCII character is the character, unless it has no advances in the table.
        const auto indices = hn::Or(hn::ShiftLeft<8>(own), next);
        const int block = hn::GetLane(hn::SumOfLanes(tag, hn::GatherIndex(tag, advances, indices)));
        if (block > room - sum)
            break;
        sum += block;
    }
    return at;
}
#endif

} // namespace AsciiAdvanceKernels::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace AsciiAdvanceKernels {
HWY_EXPORT(addBlocks);
} // namespace AsciiAdvanceKernels

qsizetype addAsciiAdvances(const char16_t *units, qsizetype count, const int *advances, int room, int &sum)
{
    using namespace AsciiAdvanceKernels;
    return HWY_DYNAMIC_DISPATCH(addBlocks)(units, count, advances, room, sum);
}
#endif
