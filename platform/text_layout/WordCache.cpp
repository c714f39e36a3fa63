// SPDX-License-Identifier: MIT
#include "platform/text_layout/WordCache.h"

#include <QHashFunctions>

#include <algorithm>
#include <bit>
#include <cstring>

namespace {

// Words whose places are taken this far are not searched for any longer.
constexpr size_t maxProbes = 16;

} // namespace

WordCache::WordCache(size_t wordCount, size_t unitCount)
    : m_wordCount(std::bit_ceil(wordCount))
    , m_unitCount(std::max(unitCount, static_cast<size_t>(maxWordLength)))
    , m_seed(QHashSeed::globalSeed()) // so that no text can choose words that collide
{
}

bool WordCache::holds(const Entry &entry, quint64 style, QStringView word) const
{
    return entry.hash == m_hash && entry.style == style && entry.length == word.size()
        && std::memcmp(
               m_text.data() + entry.start, word.utf16(), static_cast<size_t>(word.size()) * sizeof(char16_t))
        == 0;
}

CachedWord &WordCache::refer(const Entry &entry)
{
    m_referred.isSeparable = entry.isSeparable;
    m_referred.advances = {m_advances.data() + entry.start, entry.length};
    m_referred.flags = {m_flags.data() + entry.start, entry.length};
    return m_referred;
}

const CachedWord *WordCache::find(quint64 style, QStringView word)
{
    constexpr quint64 factor = 0x9E3779B97F4A7C15; // 2^64 divided by the golden ratio
    quint64 hash = (m_seed ^ style) * factor;
    for (const QChar unit : word)
        hash = (std::rotl(hash, 23) ^ unit.unicode()) * factor;
    m_hash = std::max<quint64>(hash ^ hash >> 32, 1);
    if (m_entries.empty())
        m_entries.resize(m_wordCount * 2);
    for (size_t probe = 0; probe < maxProbes; ++probe) {
        m_place = (m_hash + probe) & (m_entries.size() - 1);
        const Entry &entry = m_entries[m_place];
        if (entry.hash == 0)
            return nullptr;
        if (holds(entry, style, word))
            return &refer(entry);
    }
    return nullptr;
}

CachedWord &WordCache::insert(quint64 style, QStringView word, bool isSeparable)
{
    const auto length = static_cast<size_t>(word.size());
    if (m_held >= m_wordCount || m_text.size() + length > m_unitCount)
        clear();
    const auto start = static_cast<quint32>(m_text.size());
    m_advances.resize(start + length);
    m_flags.resize(start + length);
    m_text.insert(m_text.end(), word.utf16(), word.utf16() + length);
    m_entries[m_place] = {m_hash, style, start, static_cast<quint8>(length), isSeparable};
    ++m_held;
    return refer(m_entries[m_place]);
}

void WordCache::clear()
{
    std::fill(m_entries.begin(), m_entries.end(), Entry{});
    m_held = 0;
    m_text.clear();
    m_advances.clear();
    m_flags.clear();
}
