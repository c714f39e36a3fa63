// SPDX-License-Identifier: MIT
// FontFace is one face of a font file, loaded for shaping. Its lengths are font units, unitsPerEm() per em:
// whole, unhinted and independent of the size.
// Thread: one at a time.  Owner: FontLibrary.
#pragma once

#include "platform/text_layout/FontCatalogue.h"

#include <memory>

// NOLINTBEGIN(bugprone-reserved-identifier,modernize-use-using): as in the library's own header
typedef struct hb_blob_t hb_blob_t;
typedef struct hb_font_t hb_font_t;
// NOLINTEND(bugprone-reserved-identifier,modernize-use-using)

struct FontFileDeleter {
    void operator()(hb_blob_t *file) const;
};
/// A font file in memory, which its faces share.
using FontFile = std::unique_ptr<hb_blob_t, FontFileDeleter>;

/// Never null; empty if the file cannot be read.
FontFile mapFontFile(const QByteArray &path);

class FontFace {
public:
    /// source: outlives the face. file: that of the source; an empty one gives a face without glyphs.
    FontFace(const CatalogueFont &source, const FontFile &file);

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
