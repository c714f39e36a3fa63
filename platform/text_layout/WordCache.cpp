// SPDX-License-Identifier: MIT
#include "platform/text_layout/WordCache.h"

#include <cstring>

namespace {

constexpr size_t slotCount = 1 << 15; // about 8 MB; a long novel has half as many different words

// Whoever makes words share a slot on purpose only slows their own text down, as they could with new words.
size_t hashOf(quint32 style, QStringView word)
{
    constexpr quint64 factor = 0x9E3779B97F4A7C15; // 2^64 divided by the golden ratio
    quint64 hash = style * factor;
    for (qsizetype i = 0; i < word.size(); ++i)
        hash = (hash ^ word.utf16()[i]) * factor;
    return static_cast<size_t>(hash >> 32);
}

} // namespace

bool CachedWord::holds(quint32 wantedStyle, QStringView wanted) const
{
    return style == wantedStyle && length == wanted.size()
        && std::memcmp(text.data(), wanted.utf16(), static_cast<size_t>(wanted.size()) * sizeof(char16_t))
        == 0;
}

CachedWord &WordCache::slotFor(quint32 style, QStringView word)
{
    if (m_slots.empty())
        m_slots.resize(slotCount);
    return m_slots[hashOf(style, word) % slotCount];
}
