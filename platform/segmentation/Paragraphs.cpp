// SPDX-License-Identifier: MIT
#include "platform/segmentation/Paragraphs.h"

// Compiles the rest of this file once for every instruction set.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "platform/segmentation/Paragraphs.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace ParagraphKernels::HWY_NAMESPACE {

qsizetype findInFew(const char16_t *units, qsizetype from, qsizetype length)
{
    while (from < length && !isParagraphSeparator(units[from]))
        ++from;
    return from;
}

#if HWY_TARGET == HWY_SCALAR
qsizetype findSeparator(const char16_t *units, qsizetype length)
{
    return findInFew(units, 0, length);
}
#else
namespace hn = hwy::HWY_NAMESPACE;

// The position of the first separator, or the length.
qsizetype findSeparator(const char16_t *units, qsizetype length)
{
    const hn::ScalableTag<uint16_t> tag;
    const auto *const source = reinterpret_cast<const uint16_t *>(units);
    const auto lanes = static_cast<qsizetype>(hn::Lanes(tag));
    const auto lineFeed = hn::Set(tag, u'\n');
    const auto carriageReturn = hn::Set(tag, u'\r');
    const auto separator = hn::Set(tag, u'\u2029');
    for (qsizetype at = 0; at + lanes <= length; at += lanes) {
        const auto read = hn::LoadU(tag, source + at);
        const auto found =
            hn::Or(hn::Or(hn::Eq(read, lineFeed), hn::Eq(read, carriageReturn)), hn::Eq(read, separator));
        if (const intptr_t first = hn::FindFirstTrue(tag, found); first >= 0)
            return at + first;
    }
    return findInFew(units, length / lanes * lanes, length);
}
#endif

} // namespace ParagraphKernels::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace ParagraphKernels {
HWY_EXPORT(findSeparator);
} // namespace ParagraphKernels

bool isLineEnd(char16_t unit)
{
    return isParagraphSeparator(unit) || unit == u'\u2028';
}

qsizetype lineEndLength(QStringView text, qsizetype position)
{
    const char16_t *units = text.utf16();
    return units[position] == u'\r' && position + 1 < text.size() && units[position + 1] == u'\n' ? 2 : 1;
}

Paragraph paragraphAt(QStringView text, qsizetype start)
{
    using namespace ParagraphKernels;
    const qsizetype contentLength =
        HWY_DYNAMIC_DISPATCH(findSeparator)(text.utf16() + start, text.size() - start);
    const qsizetype end = start + contentLength;
    return {start, contentLength, contentLength + (end < text.size() ? lineEndLength(text, end) : 0)};
}
#endif
