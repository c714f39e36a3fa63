// SPDX-License-Identifier: MIT
// FontRules says how a font's rules for substitution and positioning affect the advances of certain glyphs:
// whether they follow from pairs of neighbours alone. Measuring the pairs is left to PairAdvances.
// Thread: any; a value.
#pragma once

#include <QtGlobal>

#include <memory>
#include <utility>
#include <vector>

// NOLINTBEGIN(bugprone-reserved-identifier,modernize-use-using): as in the library's own header
typedef struct hb_face_t hb_face_t;
typedef struct hb_set_t hb_set_t;
typedef struct hb_shape_plan_t hb_shape_plan_t;
// NOLINTEND(bugprone-reserved-identifier,modernize-use-using)

struct GlyphSetDeleter {
    void operator()(hb_set_t *set) const;
};
using GlyphSet = std::unique_ptr<hb_set_t, GlyphSetDeleter>;
GlyphSet makeGlyphSet();

struct FontRules {
    /// If false, nothing is known of the glyphs. If true: in a text of glyphs that are not in changed,
    /// a glyph's advance depends on itself and the next one, unless ligatures contains two neighbours.
    bool areSimple = false;
    /// Glyphs with rules that depend on more than that, such as contextual forms.
    GlyphSet changed = makeGlyphSet();
    /// Every two glyphs that may be neighbours inside a ligature; sorted.
    std::vector<std::pair<quint32, quint32>> ligatures;

    [[nodiscard]] bool mayJoin(quint32 first, quint32 second) const;
};

/// Reads the rules that a plan applies to horizontal text without fraction slashes. glyphs: those that the
/// texts may contain, besides glyphs that no rule names.
FontRules readFontRules(hb_face_t *face, hb_shape_plan_t *plan, const hb_set_t *glyphs);

/// The glyphs that the rules of a plan name.
GlyphSet glyphsNamedByRules(hb_face_t *face, hb_shape_plan_t *plan);
