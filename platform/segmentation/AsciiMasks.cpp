// SPDX-License-Identifier: MIT
#include "platform/segmentation/AsciiMasks.h"

#include <QtEndian>

#include <algorithm>
#include <bit>

// Compiles the rest of this file once for every instruction set.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "platform/segmentation/AsciiMasks.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace AsciiMaskKernels::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR
// For processors without vectors, and the oracle of the others.
void readMasks(const char16_t *units, ClassMasks *masks, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        masks[i].fill(0);
        for (int bit = 0; bit < 64; ++bit) {
            const char16_t unit = units[i * 64 + static_cast<size_t>(bit)];
            quint32 flags = unit < 0x80 ? classesOf(unit).flags() : 1U << notAsciiMask;
            for (; flags; flags &= flags - 1)
                masks[i][static_cast<size_t>(std::countr_zero(flags))] |= quint64{1} << bit;
        }
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
HWY_INLINE void store(Mask mask, ClassMasks &masks, CharacterClass value, size_t offset)
{
    // The bits of the lanes, the lowest first, on machines of either byte order.
    auto *bytes = reinterpret_cast<uint8_t *>(&masks[static_cast<size_t>(value)]);
    hn::StoreMaskBits(Bytes(), mask, bytes + offset / 8);
}

HWY_INLINE void readVector(const char16_t *units, ClassMasks &masks, size_t offset)
{
    const Bytes tag;
    const Vector bytes = readBytes(units + offset);
    const Vector lower = hn::Or(bytes, hn::Set(tag, uint8_t{0x20}));
    const auto at = equals(bytes, '@');
    const auto lowLine = equals(bytes, '_');
    const auto point = equals(bytes, '.');
    const auto middle = hn::Or(equals(bytes, '\''), point);
    const auto comma = hn::Or(equals(bytes, ','), equals(bytes, ';'));
    const auto signsAI = hn::Or(equals(lower, 'a'), equals(lower, 'i'));
    const auto signsOX = hn::Or(equals(lower, 'o'), equals(lower, 'x'));
    const auto otherTerminators = hn::Or(equals(bytes, '!'), equals(bytes, '?'));
    using enum CharacterClass;
    store(hn::Or(isInRange(lower, 'a', 26), at), masks, Letter, offset);
    store(isInRange(bytes, '0', 10), masks, Number, offset);
    store(lowLine, masks, Connector, offset);
    store(hn::Or(at, lowLine), masks, Unlettered, offset);
    store(middle, masks, MiddleOfLetters, offset);
    store(hn::Or(middle, comma), masks, MiddleOfNumbers, offset);
    store(hn::Or(signsAI, signsOX), masks, Sign, offset);
    store(hn::Or(equals(bytes, ' '), isInRange(bytes, '\t', 5)), masks, White, offset);
    store(hn::Or(point, otherTerminators), masks, Terminator, offset);
    store(hn::Or(equals(bytes, '\n'), equals(bytes, '\r')), masks, ParagraphSeparator, offset);
    const auto notAscii = hn::Ne(hn::And(bytes, hn::Set(tag, uint8_t{0x80})), hn::Zero(tag));
    store(notAscii, masks, static_cast<CharacterClass>(notAsciiMask), offset);
}

void readMasks(const char16_t *units, ClassMasks *masks, size_t count)
{
    for (size_t i = 0; i < count; ++i, units += 64) {
        masks[i].fill(0);
        for (size_t offset = 0; offset < 64; offset += hn::Lanes(Bytes()))
            readVector(units, masks[i], offset);
        if constexpr (Q_BYTE_ORDER == Q_BIG_ENDIAN)
            qbswap<sizeof(quint64)>(
                masks[i].data(), static_cast<qsizetype>(masks[i].size()), masks[i].data());
    }
}
#endif

} // namespace AsciiMaskKernels::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace AsciiMaskKernels {
HWY_EXPORT(readMasks);
} // namespace AsciiMaskKernels

void readAsciiMasks(const char16_t *units, ClassMasks *masks, size_t count)
{
    using namespace AsciiMaskKernels;
    HWY_DYNAMIC_DISPATCH(readMasks)(units, masks, count);
}
#endif
