// SPDX-License-Identifier: MIT
#include "platform/text_encoding/Utf8Decoding.h"

#include <QChar>

// Compiles the rest of this file once for every instruction set.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "platform/text_encoding/Utf8Decoding.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace Utf8Kernels::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Bytes = hn::CappedTag<uint8_t, 16>;

/// An input and an output on the way.
struct Cursor {
    const uint8_t *source;
    const uint8_t *sourceEnd;
    char16_t *target;
};

HWY_INLINE bool isContinuation(uint8_t byte)
{
    return (byte & 0xC0) == 0x80;
}

// Decodes one sequence of two bytes or more; false if it is not well-formed.
HWY_INLINE bool decodeSequence(Cursor &cursor)
{
    const uint8_t *bytes = cursor.source;
    const ptrdiff_t left = cursor.sourceEnd - bytes;
    const uint8_t first = bytes[0];
    if (first < 0xC2 || left < 2 || !isContinuation(bytes[1]))
        return false;
    if (first < 0xE0) {
        *cursor.target++ = static_cast<char16_t>((first & 0x1F) << 6 | (bytes[1] & 0x3F));
        cursor.source += 2;
        return true;
    }
    if (left < 3 || !isContinuation(bytes[2]))
        return false;
    if (first < 0xF0) {
        const int unit = (first & 0x0F) << 12 | (bytes[1] & 0x3F) << 6 | (bytes[2] & 0x3F);
        *cursor.target++ = static_cast<char16_t>(unit);
        cursor.source += 3;
        return unit >= 0x800 && (unit < 0xD800 || unit > 0xDFFF);
    }
    if (first > 0xF4 || left < 4 || !isContinuation(bytes[3]))
        return false;
    const auto character = static_cast<char32_t>(
        (first & 0x07) << 18 | (bytes[1] & 0x3F) << 12 | (bytes[2] & 0x3F) << 6 | (bytes[3] & 0x3F));
    if (character < 0x10000 || character > 0x10FFFF)
        return false;
    *cursor.target++ = static_cast<char16_t>(0xD7C0 + (character >> 10));
    *cursor.target++ = static_cast<char16_t>(0xDC00 + (character & 0x3FF));
    cursor.source += 4;
    return true;
}

size_t asciiLength(const uint8_t *bytes, size_t length)
{
    size_t at = 0;
#if HWY_TARGET != HWY_SCALAR
    const Bytes tag;
    const auto topBit = hn::Set(tag, uint8_t{0x80});
    for (; length - at >= hn::Lanes(tag); at += hn::Lanes(tag)) {
        if (!hn::AllTrue(tag, hn::Eq(hn::And(hn::LoadU(tag, bytes + at), topBit), hn::Zero(tag))))
            break;
    }
#endif
    while (at < length && bytes[at] < 0x80)
        ++at;
    return at;
}

// target: as many code units as there are bytes. Returns how many it wrote, or -1.
ptrdiff_t decode(const uint8_t *bytes, size_t length, char16_t *target)
{
    Cursor cursor{bytes, bytes + length, target};
    while (cursor.source < cursor.sourceEnd) {
#if HWY_TARGET != HWY_SCALAR
        const Bytes tag;
        const hn::Rebind<uint16_t, hn::Half<Bytes>> unitTag;
        const size_t lanes = hn::Lanes(tag);
        if (static_cast<size_t>(cursor.sourceEnd - cursor.source) >= lanes) {
            // Writes all, and again what was not ASCII: the rest of the target is as long as that of the
            // source.
            const auto vector = hn::LoadU(tag, cursor.source);
            auto *units = reinterpret_cast<uint16_t *>(cursor.target);
            hn::StoreU(hn::PromoteTo(unitTag, hn::LowerHalf(vector)), unitTag, units);
            hn::StoreU(
                hn::PromoteTo(unitTag, hn::UpperHalf(hn::Half<Bytes>(), vector)), unitTag, units + lanes / 2);
            const auto isAbove = hn::Ne(hn::And(vector, hn::Set(tag, uint8_t{0x80})), hn::Zero(tag));
            const intptr_t first = hn::FindFirstTrue(tag, isAbove);
            const size_t ascii = first < 0 ? lanes : static_cast<size_t>(first);
            cursor.source += ascii;
            cursor.target += ascii;
            if (ascii == lanes)
                continue;
        }
#endif
        if (*cursor.source < 0x80) {
            *cursor.target++ = *cursor.source++;
            continue;
        }
        do {
            if (!decodeSequence(cursor))
                return -1;
        } while (cursor.source < cursor.sourceEnd && *cursor.source >= 0x80);
    }
    return cursor.target - target;
}

} // namespace Utf8Kernels::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace Utf8Kernels {
HWY_EXPORT(asciiLength);
HWY_EXPORT(decode);
} // namespace Utf8Kernels

qsizetype asciiLength(QByteArrayView bytes)
{
    using namespace Utf8Kernels;
    const auto *data = reinterpret_cast<const uint8_t *>(bytes.data());
    return static_cast<qsizetype>(HWY_DYNAMIC_DISPATCH(asciiLength)(data, static_cast<size_t>(bytes.size())));
}

std::optional<QString> decodeUtf8(QByteArrayView bytes)
{
    using namespace Utf8Kernels;
    const auto *data = reinterpret_cast<const uint8_t *>(bytes.data());
    // Memory pages that are not written cost nothing.
    QString text(bytes.size(), Qt::Uninitialized);
    const ptrdiff_t length = HWY_DYNAMIC_DISPATCH(decode)(
        data, static_cast<size_t>(bytes.size()), reinterpret_cast<char16_t *>(text.data()));
    if (length < 0)
        return std::nullopt;
    text.truncate(length);
    return text;
}
#endif
