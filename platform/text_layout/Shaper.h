// SPDX-License-Identifier: MIT
// Shaper measures stretches of text runs with HarfBuzz: kerning and ligatures on, no hinting, no rounding.
// Thread: one at a time.  Owner: MeasuredParagraph.
#pragma once

#include "platform/text_layout/ShapingStyle.h"
#include "platform/text_layout/WordCache.h"

#include <map>
#include <memory>

/// What the line breaker must know of a code unit besides its advance.
enum UnitFlag : quint8 {
    StartsCluster = 1, ///< of the shaper: one or more graphemes that are measured together
    UnsafeToBreak = 2, ///< what stands before and what starts here measure otherwise when shaped apart
    HangingBlank = 4, ///< may stand behind the column's end
    TabCharacter = 8,
    EndsLine = 16, ///< a forced break follows
};

/// White space at which lines break and that hangs behind the column's end, and U+200B, which has no width.
bool isHangingBlank(char16_t unit);

class Shaper {
public:
    Shaper();
    Shaper(const Shaper &) = delete;
    Shaper &operator=(const Shaper &) = delete;
    ~Shaper();

    /// The style of a run that is Text and has a face; kept for the next run like it.
    const ShapingStyle &styleOf(const TextRun &run);

    /// Shapes a stretch as if the line held it alone; the characters around it only tell whether letters that
    /// join (Arabic) do so at its ends. Writes end - start advances, in font units, and flags. The advance of
    /// a cluster stands at its first code unit; that of a ligature is shared out evenly among its graphemes.
    void shape(const ShapingStyle &style, QStringView paragraph, qsizetype start, qsizetype end,
        float *advances, quint8 *flags);

    /// The same with the same result, but quick: word by word, out of a cache, where the font lets words be
    /// shaped apart.
    void shapeByWords(const ShapingStyle &style, QStringView paragraph, qsizetype start, qsizetype end,
        float *advances, quint8 *flags);

private:
    const CachedWord &cached(const ShapingStyle &style, QStringView word);
    void shapeBetweenSpaces(const ShapingStyle &style, QStringView word, CachedWord &slot);
    bool shapeWord(const ShapingStyle &style, QStringView paragraph, qsizetype start, qsizetype end,
        float *advances, quint8 *flags);

    struct BufferDeleter {
        void operator()(hb_buffer_t *buffer) const;
    };

    std::unique_ptr<hb_buffer_t, BufferDeleter> m_buffer;
    std::map<ShapingStyle::Key, std::unique_ptr<ShapingStyle>> m_styles;
    WordCache m_words;
};
