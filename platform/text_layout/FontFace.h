// SPDX-License-Identifier: MIT
// FontFace is one font file, loaded for shaping. Its lengths are font units, unitsPerEm() per em: whole,
// unhinted and independent of the size.
// Thread: one at a time.  Owner: FontLibrary.
#pragma once

#include "platform/text_layout/FontCatalogue.h"

#include <memory>

// NOLINTBEGIN(bugprone-reserved-identifier,modernize-use-using): as in the library's own header
typedef struct hb_font_t hb_font_t;
// NOLINTEND(bugprone-reserved-identifier,modernize-use-using)

class FontFace {
public:
    /// source: outlives the face. An unreadable file gives a face without glyphs.
    explicit FontFace(const CatalogueFont &source);

    [[nodiscard]] const CatalogueFont &source() const { return m_source; }

    /// Never null; owned by this object.
    [[nodiscard]] hb_font_t *shapingFont() const { return m_font.get(); }

    [[nodiscard]] double unitsPerEm() const { return m_unitsPerEm; }
    [[nodiscard]] double ascent() const { return m_ascent; } ///< font units above the baseline
    [[nodiscard]] double descent() const { return m_descent; } ///< font units below it, positive
    [[nodiscard]] double lineGap() const { return m_lineGap; }

private:
    struct FontDeleter {
        void operator()(hb_font_t *font) const;
    };

    const CatalogueFont &m_source;
    std::unique_ptr<hb_font_t, FontDeleter> m_font;
    double m_unitsPerEm;
    double m_ascent;
    double m_descent;
    double m_lineGap;
};
