// SPDX-License-Identifier: MIT
// Shaper measures stretches of text runs with HarfBuzz, with kerning and ligatures and without hinting and
// rounding. What to measure is left to MeasuredParagraph.
// Thread: one at a time.  Owner: MeasuredParagraph.
#pragma once

#include "platform/text_layout/ShapingStyle.h"
#include "platform/text_layout/WordCache.h"

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
    /// separately. start and end are those of a run, or places in one at which shaping may be split.
    void shapeByWords(const ShapingStyle &style, QStringView paragraph, qsizetype start, qsizetype end,
        float *advances, quint8 *flags);

private:
    const CachedWord &wordAlone(const ShapingStyle &style, QStringView word);
    const CachedWord &pairOfClusters(const ShapingStyle &style, QStringView pair);
    const CachedWord &wordBetweenSpaces(const ShapingStyle &style, QStringView word);
    enum class Neighbours { Spaces, Other }; // of a word in its run
    bool shapeWord(const ShapingStyle &style, QStringView paragraph, qsizetype start, qsizetype end,
        Neighbours neighbours, float *advances, quint8 *flags);
    bool shapeByClusters(const ShapingStyle &style, QStringView text, float *advances, quint8 *flags);
    void shapeEmoji(const ShapingStyle &style, QStringView word, float *advances, quint8 *flags);

    struct BufferDeleter {
        void operator()(hb_buffer_t *buffer) const;
    };

    // Random text changes the font and the script at every second character.
    struct RecentStyle {
        ShapingStyle::Key key;
        const ShapingStyle *style = nullptr;
    };
    static constexpr size_t recentStyles = 64;

    std::unique_ptr<hb_buffer_t, BufferDeleter> m_buffer;
    std::map<ShapingStyle::Key, std::unique_ptr<ShapingStyle>> m_styles;
    std::array<RecentStyle, recentStyles> m_recentStyles;
    // About 8 MB. A long novel has a third as many different words.
    WordCache m_words{size_t{1} << 16, size_t{1} << 19};
};
