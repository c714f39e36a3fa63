// SPDX-License-Identifier: MIT
#include "platform/text_layout/FontFace.h"

#include <hb-ot.h>
#include <hb.h>

#include <algorithm>

void FontFace::FontDeleter::operator()(hb_font_t *font) const
{
    hb_font_destroy(font);
}

FontFace::FontFace(const CatalogueFont &source)
    : m_source(source)
{
    const auto index = static_cast<unsigned>(source.index);
    hb_blob_t *blob = hb_blob_create_from_file(source.path.constData());
    hb_face_t *face = hb_face_create(blob, index & 0xFFFF);
    hb_blob_destroy(blob);
    m_font.reset(hb_font_create(face));
    // HarfBuzz returns 1000 if the font has no valid value.
    m_unitsPerEm = hb_face_get_upem(face);
    hb_face_destroy(face);
    if (const unsigned instance = index >> 16; instance > 0)
        hb_font_set_var_named_instance(m_font.get(), instance - 1);

    hb_font_extents_t extents{};
    hb_font_get_h_extents(m_font.get(), &extents);
    m_ascent = std::max(0, extents.ascender);
    m_descent = std::max(0, -extents.descender);
    m_lineGap = std::max(0, extents.line_gap);
    hb_font_make_immutable(m_font.get());
}
