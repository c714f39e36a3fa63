// SPDX-License-Identifier: MIT
// ShapingStyle is everything besides the text that affects shaping: font, script, direction, language,
// ligatures. It holds HarfBuzz's plan for them. It is independent of the size: advances are in font units.
// Thread: one at a time.  Owner: Shaper.
#pragma once

#include "platform/text_layout/ClusterRules.h"
#include "platform/text_layout/FontRules.h"
#include "platform/text_layout/TextRun.h"

#include <QStringView>

#include <memory>
#include <tuple>

// NOLINTBEGIN(bugprone-reserved-identifier,modernize-use-using): as in the library's own header
typedef struct hb_buffer_t hb_buffer_t;
// NOLINTEND(bugprone-reserved-identifier,modernize-use-using)

class ShapingStyle {
public:
    using Key = std::tuple<const FontFace *, quint32, bool, bool, QByteArray>;

    /// run: Text with a face. number: from 1, unique within a shaper.
    ShapingStyle(const TextRun &run, quint32 number);
    [[nodiscard]] static Key keyOf(const TextRun &run);

    /// Shapes a buffer of Unicode text into glyphs.
    void shape(hb_buffer_t *buffer) const;

    [[nodiscard]] quint32 number() const { return m_number; }

    /// Whether words can be shaped separately: none of the font's rules that apply here names the space, so
    /// no rule affects both a word and the next one.
    [[nodiscard]] bool areWordsSeparable() const { return m_areWordsSeparable; }

    /// Whether the letters of the script may take other forms next to letters that are not in the run.
    [[nodiscard]] bool mayHaveJoiningLetters() const { return m_mayHaveJoiningLetters; }

    /// Whether each grapheme cluster can be shaped separately.
    [[nodiscard]] bool isOfEmoji() const { return m_face.source().isColored; }

    /// Whether the advance of a cluster may follow from itself and the next one; areClustersPlain() knows.
    [[nodiscard]] bool areClustersSeparable() const { return m_clusterRules.areSimple; }
    /// Whether it does in a text that consists of clusters like these.
    [[nodiscard]] bool areClustersPlain(QStringView clusters) const;

    /// The advance of a space; valid only if areWordsSeparable().
    [[nodiscard]] float spaceAdvance() const { return m_spaceAdvance; }

    [[nodiscard]] const FontFace &face() const { return m_face; }
    [[nodiscard]] quint32 script() const { return m_script; }
    [[nodiscard]] bool mayHaveLigatures() const { return m_hasLigatures; }

    /// The glyph of a character alone. Returns false if the font has none.
    bool glyphOf(char32_t character, quint32 &glyph) const;

    /// Whether the only rules that apply here are those that rulesFor() and namedGlyphs() know.
    [[nodiscard]] bool isOfOpenTypeRules() const;
    /// Whether there may be kerning that no rule names: of a 'kern' table, which has pairs.
    [[nodiscard]] bool mayHaveKerningTable() const;
    [[nodiscard]] FontRules rulesFor(const hb_set_t *glyphs) const;
    [[nodiscard]] GlyphSet namedGlyphs() const;

private:
    [[nodiscard]] bool mayReadClusterRules() const;
    void readClusterRules();
    [[nodiscard]] bool hasTable(quint32 tag, bool onlyOfVersionOne) const;
    [[nodiscard]] bool hasStateMachines() const;

    struct PlanDeleter {
        void operator()(hb_shape_plan_t *plan) const;
    };

    quint32 m_number;
    bool m_areWordsSeparable = false;
    bool m_mayHaveJoiningLetters;
    float m_spaceAdvance = 0;
    const FontFace &m_face;
    quint32 m_script;
    bool m_isRightToLeft;
    bool m_hasLigatures;
    QByteArray m_language;
    ClusterRules m_clusterRules;
    std::unique_ptr<hb_shape_plan_t, PlanDeleter> m_plan;
};
