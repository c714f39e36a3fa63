// SPDX-License-Identifier: MIT
// PairAdvances gives the advance of a character from itself and the next one, for the characters of one
// shaping style whose advances depend on nothing else; FontRules knows which. It measures each pair once,
// when a text first has it. Adding up is left to PairText and LineFiller.
// Thread: one at a time.  Owner: PairRuns.
#pragma once

#include "platform/text_layout/FontRules.h"
#include "platform/text_layout/Shaper.h"

#include <array>

/// Whether text is not shaped together with what follows or precedes this code unit: a tab or another
/// control.
inline bool isApart(char16_t unit)
{
    return unit == u'\t' || isInvisibleControl(unit);
}

class PairAdvances {
public:
    // Values of advance() that are not advances; greater than any sum of a few advances.
    static constexpr int unknown = 1 << 23; ///< to be measured by measure()
    static constexpr int joined = 1 << 24; ///< the pair may be inside a ligature
    static constexpr int unsupported = 1 << 25; ///< one of the two does not belong here
    /// Anything less than this is an advance, in font units.
    static constexpr int limit = unknown;

    /// What is measured: pairs, or characters that are alone between tabs and controls or in another font
    /// than their neighbours. No rule of a font matters to those.
    enum class Text { Pairs, LoneCharacters };

    /// style: from left to right. fonts: unless null, only characters are supported for which these give the
    /// font of the style. All must outlive this object.
    PairAdvances(FontChain *fonts, Shaper &shaper, const ShapingStyle &style, Text text = Text::Pairs);

    /// If false, no character is supported.
    [[nodiscard]] bool isUsable() const { return m_rules.areSimple; }

    [[nodiscard]] bool supports(char16_t character) { return isUsable() && isSupported(classify(character)); }

    /// Characters of one class have the same advances. 0: not yet known.
    [[nodiscard]] const quint8 *classes() const { return m_classes.data(); }
    static size_t indexOf(size_t first, size_t second) { return first << 8 | second; }
    /// advances()[indexOf(class of a character, class of the next one)], or one of the values above.
    [[nodiscard]] const int *advances() const { return m_advances.data(); }
    /// The class that stands for a tab or the end of the text as next character.
    static constexpr quint8 endClass = u'\t';
    /// That of a control character that ends a line; like a tab, it has no advance of its own here.
    static constexpr quint8 forcedBreakClass = u'\v';

    /// Finds the advance of a pair that is unknown, so that from now on advances() has it.
    void measure(char16_t first, char16_t second);
    void measureAlone(char16_t character) { measure(character, u'\t'); }

    /// Whether a line that ends between a pair, which has an advance, must be measured again.
    [[nodiscard]] bool isUnsafe(quint8 first, quint8 second) const
    {
        return m_isUnsafe[indexOf(first, second)];
    }

    [[nodiscard]] const ShapingStyle &style() const { return m_style; }

private:
    struct Inert {
        int advance;
        quint8 ownClass;
    };

    void readRules();
    void addControls();
    [[nodiscard]] static bool isSupported(quint8 ownClass);
    [[nodiscard]] bool isCandidate(char16_t unit) const;
    bool glyphOf(char16_t unit, quint32 &glyph) const;
    void collectGlyphs(hb_set_t *glyphs) const;
    quint8 classify(char16_t unit);
    quint8 findClass(char16_t unit);
    quint8 addClass(char16_t unit);
    quint8 classOfAdvance(char16_t unit);
    int advanceOfPair(char16_t first, char16_t second, bool &isUnsafe);

    int &at(quint8 first, quint8 second) { return m_advances[indexOf(first, second)]; }

    FontChain *m_fonts;
    Shaper &m_shaper;
    const ShapingStyle &m_style;
    bool m_isOfLoneCharacters;
    FontRules m_rules;
    GlyphSet m_named;
    GlyphSet m_covered; // by m_rules
    bool m_hasKerningTable = false; // so that any glyph may be in a pair
    std::vector<quint8> m_classes; // by code unit
    std::vector<int> m_advances; // by pair of classes
    std::vector<bool> m_isUnsafe;
    std::vector<Inert> m_inert; // classes of characters that no rule names
    quint8 m_absentClass = 0; // of the characters that no font has, when known
    int m_nextClass;
};
