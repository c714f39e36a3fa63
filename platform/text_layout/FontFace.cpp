// SPDX-License-Identifier: MIT
#include "platform/text_layout/FontFace.h"

#include "platform/system/OwnedDescriptor.h"

#include <hb-ot.h>
#include <hb.h>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <limits>

namespace {

struct Mapping {
    void *bytes;
    size_t length;
};

void unmap(void *mapping)
{
    const auto *const owned = static_cast<Mapping *>(mapping);
    ::munmap(owned->bytes, owned->length);
    delete owned;
}

} // namespace

void FontFileDeleter::operator()(hb_blob_t *file) const
{
    hb_blob_destroy(file);
}

// HarfBuzz's own function needs fstat(), which a sandbox does not allow.
FontFile mapFontFile(const QByteArray &path)
{
    const OwnedDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC));
    const off_t length = file ? ::lseek(file.get(), 0, SEEK_END) : -1;
    if (length <= 0 || length > std::numeric_limits<int>::max())
        return FontFile(hb_blob_get_empty());
    const auto size = static_cast<size_t>(length);
    void *const bytes = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file.get(), 0);
    if (bytes == MAP_FAILED)
        return FontFile(hb_blob_get_empty());
    return FontFile(hb_blob_create(static_cast<const char *>(bytes), static_cast<unsigned>(size),
        HB_MEMORY_MODE_READONLY_MAY_MAKE_WRITABLE, new Mapping{bytes, size}, unmap));
}

void FontFace::FontDeleter::operator()(hb_font_t *font) const
{
    hb_font_destroy(font);
}

FontFace::FontFace(const CatalogueFont &source, const FontFile &file)
    : m_source(source)
{
    const auto index = static_cast<unsigned>(source.index);
    hb_face_t *face = hb_face_create(file.get(), index & 0xFFFF);
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
