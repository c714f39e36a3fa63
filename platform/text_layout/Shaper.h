// SPDX-License-Identifier: MIT
// Shaper measures stretches of text runs with HarfBuzz, with kerning and ligatures and without hinting and
// rounding. What to measure is left to MeasuredParagraph.
// Thread: one at a time.  Owner: MeasuredParagraph.
#pragma once

#include "platform/text_layout/ShapingStyle.h"

#include <QStringView>

#include <array>
#include <map>
#include <memory>
#include <vector>

/// What the line breaker needs to know of a code unit besides its advance.
enum UnitFlag : quint8 {
    StartsCluster = 1, ///< of the shaper: one or more graphemes that are measured together
    UnsafeToBreak = 2, ///< the text before and after this place measures differently when shaped separately
    HangingBlank = 4, ///< may extend past the column's end
    TabCharacter = 8,
    EndsLine = 16, ///< a forced break follows
};

/// White space at which lines break and which may extend past the column's end, and U+200B, which has no
/// width.
bool isHangingBlank(char16_t unit);

/// What shaping found of one short word.
struct CachedWord {
    static constexpr qsizetype maxLength = 32; // UTF-16 code units

    quint32 style = 0; ///< number of a shaping style, from 1; 0 in an empty slot
    quint8 length = 0;
    bool isSeparable = false; ///< shaped the same with or without the words around it
    std::array<char16_t, maxLength> text;
    std::array<float, maxLength> advances; ///< as of Shaper
    std::array<quint8, maxLength> flags;

    [[nodiscard]] bool holds(quint32 wantedStyle, QStringView wanted) const;
};

/// Lets a text shape each of its words about once. Its size is fixed: words that share a slot replace each
/// other.
class WordCache {
public:
    explicit WordCache(size_t slotCount)
        : m_slotCount(slotCount)
    {
    }

    /// The only slot for a word of 1 to CachedWord::maxLength code units. If it holds another word, the
    /// caller fills it. Valid until the next call.
    CachedWord &slotFor(quint32 style, QStringView word);

private:
    size_t m_slotCount;
    std::vector<CachedWord> m_slots; // made at the first use
};

class Shaper {
public:
    Shaper();
    Shaper(const Shaper &) = delete;
    Shaper &operator=(const Shaper &) = delete;
    ~Shaper();

    /// The style of a run that is Text and has a face; reused for runs with the same key.
    const ShapingStyle &styleOf(const TextRun &run);

    /// Shapes a stretch as if it were alone on the line; the characters around it only decide whether joining
    /// letters (Arabic) join at its ends. Writes end - start advances, in font units, and flags. The first
    /// code unit of a cluster has the cluster's advance; a ligature's advance is divided evenly among its
    /// graphemes.
    void shape(const ShapingStyle &style, QStringView paragraph, qsizetype start, qsizetype end,
        float *advances, quint8 *flags);

    /// Gives the same result faster: word by word, with a cache, if the font allows to shape words
    /// separately.
    void shapeByWords(const ShapingStyle &style, QStringView paragraph, qsizetype start, qsizetype end,
        float *advances, quint8 *flags);

private:
    const CachedWord &cachedWord(const ShapingStyle &style, QStringView word);
    void shapeBetweenSpaces(const ShapingStyle &style, QStringView word, CachedWord &slot);
    bool shapeWord(const ShapingStyle &style, QStringView paragraph, qsizetype start, qsizetype end,
        float *advances, quint8 *flags);
    void shapeEmoji(const ShapingStyle &style, QStringView word, float *advances, quint8 *flags);

    struct BufferDeleter {
        void operator()(hb_buffer_t *buffer) const;
    };

    std::unique_ptr<hb_buffer_t, BufferDeleter> m_buffer;
    std::map<ShapingStyle::Key, std::unique_ptr<ShapingStyle>> m_styles;
    WordCache m_words{size_t{1} << 15}; // about 8 MB; a long novel has half as many different words
};
