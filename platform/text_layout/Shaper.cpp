// SPDX-License-Identifier: MIT
#include "platform/text_layout/Shaper.h"

#include "platform/segmentation/GraphemeClusters.h"

#include <hb.h>

#include <algorithm>
#include <cstring>
#include <numeric>

namespace {

// Code units that HarfBuzz considers on either side of a stretch.
constexpr qsizetype contextLength = 8;

// What the cache holds of a text in a style.
enum class Entry { Alone, BetweenSpaces, PairOfClusters };

quint64 keyOf(const ShapingStyle &style, Entry entry)
{
    return quint64{style.number()} << 2 | static_cast<quint64>(entry);
}

// Whether letters never join across a character. Marks and the soft hyphen are transparent.
bool stopsJoining(char16_t unit)
{
    constexpr char16_t firstMark = 0x300;
    return unit < firstMark && unit != u'\u00AD';
}

void distributeLigatures(QStringView text, float *advances, const quint8 *flags)
{
    for (qsizetype start = 0; start < text.size();) {
        qsizetype end = start + 1;
        while (end < text.size() && !(flags[end] & StartsCluster))
            ++end;
        int graphemes = 0;
        if (end - start > 1) {
            for (qsizetype at = start; at < end; at = graphemeClusterEnd(text, at))
                ++graphemes;
        }
        if (graphemes > 1) {
            const float share = advances[start] / static_cast<float>(graphemes);
            for (qsizetype at = start; at < end; at = graphemeClusterEnd(text, at))
                advances[at] = share;
        }
        start = end;
    }
}

} // namespace

bool isHangingBlank(char16_t unit)
{
    if (unit <= u' ')
        return unit == u' ';
    return unit == 0x1680 || (unit >= 0x2000 && unit <= 0x200B && unit != 0x2007) || unit == 0x205F
        || unit == 0x3000;
}

void Shaper::BufferDeleter::operator()(hb_buffer_t *buffer) const
{
    hb_buffer_destroy(buffer);
}

Shaper::Shaper()
    : m_buffer(hb_buffer_create())
{
}

Shaper::~Shaper() = default;

const ShapingStyle &Shaper::styleOf(const TextRun &run)
{
    const auto number = reinterpret_cast<size_t>(run.face) / alignof(FontFace);
    RecentStyle &recent =
        m_recentStyles[(number ^ number >> 8 ^ run.script ^ run.script >> 8) % recentStyles];
    ShapingStyle::Key key = ShapingStyle::keyOf(run);
    if (recent.style && recent.key == key)
        return *recent.style;
    std::unique_ptr<ShapingStyle> &style = m_styles[key];
    if (!style)
        style = std::make_unique<ShapingStyle>(run, static_cast<quint32>(m_styles.size()));
    recent = {std::move(key), style.get()};
    return *style;
}

void Shaper::shape(const ShapingStyle &style, QStringView paragraph, qsizetype start, qsizetype end,
    float *advances, quint8 *flags)
{
    const qsizetype length = end - start;
    const qsizetype contextStart = std::max<qsizetype>(0, start - contextLength);
    const qsizetype contextEnd = std::min(paragraph.size(), end + contextLength);
    hb_buffer_t *buffer = m_buffer.get();
    hb_buffer_clear_contents(buffer);
    hb_buffer_add_utf16(buffer, reinterpret_cast<const uint16_t *>(paragraph.utf16() + contextStart),
        static_cast<int>(contextEnd - contextStart), static_cast<unsigned>(start - contextStart),
        static_cast<int>(length));
    style.shape(buffer);

    const QStringView text = paragraph.sliced(start, length);
    std::fill(advances, advances + length, 0.0F);
    // Within a cluster every break is unsafe.
    for (qsizetype i = 0; i < length; ++i)
        flags[i] = UnsafeToBreak | (isHangingBlank(text.utf16()[i]) ? HangingBlank : 0);
    unsigned glyphCount = 0;
    const hb_glyph_info_t *glyphs = hb_buffer_get_glyph_infos(buffer, &glyphCount);
    const hb_glyph_position_t *positions = hb_buffer_get_glyph_positions(buffer, &glyphCount);
    for (unsigned i = 0; i < glyphCount; ++i) {
        const qsizetype at = contextStart + glyphs[i].cluster - start;
        if (at < 0 || at >= length)
            continue;
        advances[at] += static_cast<float>(positions[i].x_advance);
        // All glyphs of a cluster carry the same flags.
        const bool isUnsafe = hb_glyph_info_get_glyph_flags(glyphs + i) & HB_GLYPH_FLAG_UNSAFE_TO_BREAK;
        flags[at] =
            static_cast<quint8>((flags[at] & HangingBlank) | StartsCluster | (isUnsafe ? UnsafeToBreak : 0));
    }
    distributeLigatures(text, advances, flags);
}

const CachedWord &Shaper::wordAlone(const ShapingStyle &style, QStringView word)
{
    const quint64 key = keyOf(style, Entry::Alone);
    if (const CachedWord *known = m_words.find(key, word))
        return *known;
    const CachedWord &added = m_words.insert(key, word, true);
    shape(style, word, 0, word.size(), added.advances.data(), added.flags.data());
    return added;
}

const CachedWord &Shaper::pairOfClusters(const ShapingStyle &style, QStringView pair)
{
    const quint64 key = keyOf(style, Entry::PairOfClusters);
    if (const CachedWord *known = m_words.find(key, pair))
        return *known;
    const CachedWord &added = m_words.insert(key, pair, style.areClustersPlain(pair));
    shape(style, pair, 0, pair.size(), added.advances.data(), added.flags.data());
    return added;
}

// The advance of a cluster, and whether a line may end after it, follow from itself and the next one. Returns
// false if that is not known.
bool Shaper::shapeByClusters(const ShapingStyle &style, QStringView text, float *advances, quint8 *flags)
{
    qsizetype start = 0;
    for (qsizetype end = graphemeClusterEnd(text, 0); start < text.size();) {
        const qsizetype nextEnd = end < text.size() ? graphemeClusterEnd(text, end) : end;
        if (nextEnd - start > WordCache::maxWordLength)
            return false;
        const CachedWord &pair = pairOfClusters(style, text.sliced(start, nextEnd - start));
        if (!pair.isSeparable)
            return false;
        std::copy_n(pair.advances.begin(), end - start, advances + start);
        // The flags of a cluster's start come from the pair that ends with it.
        const qsizetype known = start == 0 ? 0 : 1;
        std::copy(pair.flags.begin() + known, pair.flags.end(), flags + start + known);
        start = end;
        end = nextEnd;
    }
    return true;
}

// With spaces around it, the result shows whether the word measures the same without them.
const CachedWord &Shaper::wordBetweenSpaces(const ShapingStyle &style, QStringView word)
{
    const quint64 key = keyOf(style, Entry::BetweenSpaces);
    if (const CachedWord *known = m_words.find(key, word))
        return *known;
    constexpr auto maxLength = static_cast<size_t>(WordCache::maxWordLength) + 2;
    const auto length = static_cast<size_t>(word.size());
    std::array<char16_t, maxLength> text;
    std::array<float, maxLength> advances;
    std::array<quint8, maxLength> flags;
    text[0] = u' ';
    std::copy_n(word.utf16(), length, text.begin() + 1);
    text[length + 1] = u' ';
    const auto textLength = static_cast<qsizetype>(length) + 2;
    shape(style, QStringView(text.data(), textLength), 0, textLength, advances.data(), flags.data());

    const auto isSafe = [&](size_t at) {
        return (flags[at] & (StartsCluster | UnsafeToBreak)) == StartsCluster;
    };
    const bool isSeparable = isSafe(1) && isSafe(length + 1) && advances[0] == style.spaceAdvance()
        && advances[length + 1] == style.spaceAdvance();
    const CachedWord &added = m_words.insert(key, word, isSeparable);
    std::copy_n(advances.begin() + 1, length, added.advances.begin());
    std::copy_n(flags.begin() + 1, length, added.flags.begin());
    return added;
}

// A font of emoji has hundreds of ligatures, which HarfBuzz tries at each emoji. They stay within a cluster.
void Shaper::shapeEmoji(const ShapingStyle &style, QStringView word, float *advances, quint8 *flags)
{
    // Code units; no emoji is longer. Longer clusters are several emoji.
    constexpr qsizetype maxEmojiLength = 16;
    qsizetype clusterEnd = 0;
    for (qsizetype at = 0, cluster = 0; at < word.size();) {
        if (at == clusterEnd) {
            cluster = at;
            clusterEnd = graphemeClusterEnd(word, at);
        }
        const qsizetype end = graphemeClusterEnd(word.first(std::min(clusterEnd, at + maxEmojiLength)), at);
        const CachedWord &emoji = wordAlone(style, word.sliced(at, end - at));
        std::copy_n(emoji.advances.begin(), end - at, advances + at);
        std::copy_n(emoji.flags.begin(), end - at, flags + at);
        if (at > cluster) {
            advances[cluster] += std::accumulate(advances + at, advances + end, 0.0F);
            std::fill(advances + at, advances + end, 0.0F);
            std::fill(flags + at, flags + end, static_cast<quint8>(UnsafeToBreak));
        }
        at = end;
    }
}

// Returns false if the word cannot be shaped without its neighbours.
bool Shaper::shapeWord(const ShapingStyle &style, QStringView paragraph, qsizetype start, qsizetype end,
    Neighbours neighbours, float *advances, quint8 *flags)
{
    const QStringView text = paragraph.sliced(start, end - start);
    if (style.isOfEmoji()) {
        shapeEmoji(style, text, advances, flags);
        return true;
    }
    if (style.areClustersSeparable() && shapeByClusters(style, text, advances, flags))
        return true;
    const char16_t *units = paragraph.utf16();
    const bool isApart = !style.mayHaveJoiningLetters()
        || ((start == 0 || stopsJoining(units[start - 1]))
            && (end == paragraph.size() || stopsJoining(units[end])));
    if (!isApart || end - start > WordCache::maxWordLength) {
        shape(style, paragraph, start, end, advances, flags);
        return true;
    }
    const CachedWord &word =
        neighbours == Neighbours::Spaces ? wordBetweenSpaces(style, text) : wordAlone(style, text);
    std::copy_n(word.advances.begin(), end - start, advances);
    std::copy_n(word.flags.begin(), end - start, flags);
    return word.isSeparable;
}

void Shaper::shapeByWords(const ShapingStyle &style, QStringView paragraph, qsizetype start, qsizetype end,
    float *advances, quint8 *flags)
{
    const char16_t *units = paragraph.utf16();
    if (std::find(units + start, units + end, u' ') == units + end) {
        shapeWord(style, paragraph, start, end, Neighbours::Other, advances, flags);
        return;
    }
    const auto separates = [&](qsizetype at) {
        return units[at] == u' '
            && (at + 1 == paragraph.size() || !continuesGraphemeCluster(codePointAt(paragraph, at + 1)));
    };
    bool areSeparable = style.areWordsSeparable();
    for (qsizetype at = start; at < end && areSeparable;) {
        float *advance = advances + (at - start);
        quint8 *flag = flags + (at - start);
        if (separates(at)) {
            *advance = style.spaceAdvance();
            *flag = StartsCluster | HangingBlank;
            ++at;
            continue;
        }
        qsizetype wordEnd = at + 1;
        while (wordEnd < end && !separates(wordEnd))
            ++wordEnd;
        areSeparable = shapeWord(style, paragraph, at, wordEnd, Neighbours::Spaces, advance, flag);
        at = wordEnd;
    }
    if (!areSeparable)
        shape(style, paragraph, start, end, advances, flags);
}
