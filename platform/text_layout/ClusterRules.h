// SPDX-License-Identifier: MIT
// ClusterRules says whether a font's rules stay within grapheme clusters: whether the advance of a cluster
// follows from itself and the next one, for letters with marks above and below them (Thai, Lao). Measuring
// the clusters is left to Shaper.
// Thread: any; a value.
#pragma once

#include "platform/text_layout/FontRules.h"

struct ClusterRules {
    /// If false, nothing is known.
    bool areSimple = false;
    /// Glyphs in rules that may cover several clusters: nothing is known of a text that has one of them.
    GlyphSet excluded = makeGlyphSet();
};

/// Reads all rules of a font, whether they apply or not. bases: the glyphs of the characters that start a
/// cluster, which the texts may have; marks: those of the characters that continue one.
ClusterRules readClusterRules(hb_face_t *face, const hb_set_t *bases, const hb_set_t *marks);
