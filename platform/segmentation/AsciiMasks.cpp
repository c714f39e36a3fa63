// SPDX-License-Identifier: MIT
#include "platform/segmentation/AsciiMasks.h"

#include <QtEndian>

// Compiles the rest of this file once for every instruction set.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "platform/segmentation/AsciiMasks.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace AsciiMaskKernels::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR
// For processors without vectors, and the oracle of the others.
void readMasks(const char16_t *units, AsciiMasks &masks)
{
    masks = {};
    const auto add = [](quint64 &mask, bool isSet, int position) { mask |= quint64{isSet} << position; };
    for (int i = 0; i < 64; ++i) {
        const char16_t unit = units[i];
        if (unit >= 0x80) {
            add(masks.notAscii, true, i);
            continue;
        }
        const int lower = unit | 0x20;
        const bool isMiddle = unit == u'\'' || unit == u'.';
        add(masks.letter, (lower >= 'a' && lower <= 'z') || unit == u'@', i);
        add(masks.number, unit >= u'0' && unit <= u'9', i);
        add(masks.connector, unit == u'_', i);
        add(masks.unlettered, unit == u'@' || unit == u'_', i);
        add(masks.middleOfLetters, isMiddle, i);
        add(masks.middleOfNumbers, isMiddle || unit == u',' || unit == u';', i);
        add(masks.sign, lower == 'a' || lower == 'i' || lower == 'o' || lower == 'x', i);
        add(masks.white, unit == u' ' || (unit >= u'\t' && unit <= u'\r'), i);
        add(masks.terminator, unit == u'.' || unit == u'!' || unit == u'?', i);
        add(masks.paragraphSeparator, unit == u'\n' || unit == u'\r', i);
    }
}
#else
namespace hn = hwy::HWY_NAMESPACE;

using Bytes = hn::CappedTag<uint8_t, 64>;
using Units = hn::Repartition<uint16_t, Bytes>;
using SignedUnits = hn::RebindToSigned<Units>;
using HalfBytes = hn::Half<Bytes>;
using Vector = hn::Vec<Bytes>;

// One byte for each code unit; those above U+00FF become 0xFF.
HWY_INLINE Vector readBytes(const char16_t *units)
{
    const Units unitTag;
    const SignedUnits signedTag;
    const HalfBytes half;
    const auto *source = reinterpret_cast<const uint16_t *>(units);
    const auto limit = hn::Set(unitTag, 0xFF);
    const auto low = hn::Min(hn::LoadU(unitTag, source), limit);
    const auto high = hn::Min(hn::LoadU(unitTag, source + hn::Lanes(unitTag)), limit);
    return hn::Combine(Bytes(), hn::DemoteTo(half, hn::BitCast(signedTag, high)),
        hn::DemoteTo(half, hn::BitCast(signedTag, low)));
}

HWY_INLINE hn::Mask<Bytes> equals(Vector bytes, char value)
{
    return hn::Eq(bytes, hn::Set(Bytes(), static_cast<uint8_t>(value)));
}

// Whether first <= byte < first + count.
HWY_INLINE hn::Mask<Bytes> isInRange(Vector bytes, char first, uint8_t count)
{
    const Bytes tag;
    const auto offset = hn::Sub(bytes, hn::Set(tag, static_cast<uint8_t>(first)));
    return hn::Eq(hn::Min(offset, hn::Set(tag, static_cast<uint8_t>(count - 1))), offset);
}

template <typename Mask>
HWY_INLINE void store(Mask mask, quint64 &bits, size_t offset)
{
    // The bits of the lanes, the lowest first, on machines of either byte order.
    hn::StoreMaskBits(Bytes(), mask, reinterpret_cast<uint8_t *>(&bits) + offset / 8);
}

void readMasks(const char16_t *units, AsciiMasks &masks)
{
    const Bytes tag;
    for (size_t offset = 0; offset < 64; offset += hn::Lanes(tag)) {
        const Vector bytes = readBytes(units + offset);
        const Vector lower = hn::Or(bytes, hn::Set(tag, uint8_t{0x20}));
        const auto at = equals(bytes, '@');
        const auto lowLine = equals(bytes, '_');
        const auto middle = hn::Or(equals(bytes, '\''), equals(bytes, '.'));
        store(hn::Or(isInRange(lower, 'a', 26), at), masks.letter, offset);
        store(isInRange(bytes, '0', 10), masks.number, offset);
        store(lowLine, masks.connector, offset);
        store(hn::Or(at, lowLine), masks.unlettered, offset);
        store(middle, masks.middleOfLetters, offset);
        store(hn::Or(middle, hn::Or(equals(bytes, ','), equals(bytes, ';'))), masks.middleOfNumbers, offset);
        store(hn::Or(hn::Or(equals(lower, 'a'), equals(lower, 'i')),
                  hn::Or(equals(lower, 'o'), equals(lower, 'x'))),
            masks.sign, offset);
        store(hn::Or(equals(bytes, ' '), isInRange(bytes, '\t', 5)), masks.white, offset);
        store(hn::Or(equals(bytes, '.'), hn::Or(equals(bytes, '!'), equals(bytes, '?'))), masks.terminator,
            offset);
        store(hn::Or(equals(bytes, '\n'), equals(bytes, '\r')), masks.paragraphSeparator, offset);
        store(hn::Ne(hn::And(bytes, hn::Set(tag, uint8_t{0x80})), hn::Zero(tag)), masks.notAscii, offset);
    }
    if constexpr (Q_BYTE_ORDER == Q_BIG_ENDIAN) {
        for (quint64 *mask = &masks.letter; mask <= &masks.notAscii; ++mask)
            *mask = qbswap(*mask);
    }
}
#endif

} // namespace AsciiMaskKernels::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace AsciiMaskKernels {
HWY_EXPORT(readMasks);
} // namespace AsciiMaskKernels

void readAsciiMasks(const char16_t *units, AsciiMasks &masks)
{
    using namespace AsciiMaskKernels;
    HWY_DYNAMIC_DISPATCH(readMasks)(units, masks);
}
#endif
