// SPDX-License-Identifier: MIT
#include "platform/text_layout/LayoutTable.h"

#include <hb-ot.h>
#include <hb.h>

#include <algorithm>

namespace {

// No font that is worth the time needs more; bounds the work on a malicious one.
constexpr size_t maxReadings = 4'000'000;

} // namespace

LayoutTable::LayoutTable(hb_face_t *face, quint32 tag)
    : m_extensionType(tag == HB_OT_TAG_GSUB ? 7 : 9)
    , m_blob(hb_face_reference_table(face, tag))
{
    unsigned length = 0;
    m_data = reinterpret_cast<const unsigned char *>(hb_blob_get_data(m_blob, &length));
    m_length = length;
}

LayoutTable::~LayoutTable()
{
    hb_blob_destroy(m_blob);
}

quint16 LayoutTable::value(size_t position)
{
    if (position + 2 > m_length || ++m_readings > maxReadings)
        m_hasFailed = true;
    if (m_hasFailed)
        return 0;
    return static_cast<quint16>(m_data[position] << 8 | m_data[position + 1]);
}

quint32 LayoutTable::longValue(size_t position)
{
    const quint32 high = value(position);
    return high << 16 | value(position + 2);
}

LayoutTable::Lookup LayoutTable::lookup(quint32 index)
{
    const size_t list = value(8);
    if (list == 0 || index >= value(list)) {
        m_hasFailed = true;
        return {0, 0, {}};
    }
    const size_t start = target(list, list + 2 + 2 * static_cast<size_t>(index));
    Lookup lookup{value(start), value(start + 2), {}};
    const size_t count = value(start + 4);
    for (size_t i = 0; i < count && !m_hasFailed; ++i)
        lookup.subtables.push_back(target(start, start + 6 + 2 * i));
    if (lookup.type == m_extensionType) {
        for (size_t &subtable : lookup.subtables) {
            lookup.type = value(subtable + 2);
            subtable += longValue(subtable + 4);
        }
    }
    return lookup;
}

void LayoutTable::forEachCovered(size_t coverage, const hb_set_t *glyphs, const VisitGlyph &visit)
{
    const quint16 format = value(coverage);
    const size_t count = value(coverage + 2);
    if (format != 1 && format != 2)
        m_hasFailed = true;
    for (size_t i = 0; i < count && !m_hasFailed; ++i) {
        if (format == 1) {
            const quint16 glyph = value(coverage + 4 + 2 * i);
            if (hb_set_has(glyphs, glyph))
                visit(glyph, i);
            continue;
        }
        const size_t range = coverage + 4 + 6 * i;
        const quint32 first = value(range);
        const quint32 last = value(range + 2);
        const size_t firstIndex = value(range + 4);
        hb_codepoint_t glyph = first == 0 ? HB_SET_VALUE_INVALID : first - 1;
        while (hb_set_next(glyphs, &glyph) && glyph <= last)
            visit(glyph, firstIndex + glyph - first);
    }
}

bool LayoutTable::coversAny(size_t coverage, const hb_set_t *glyphs)
{
    bool isAny = false;
    forEachCovered(coverage, glyphs, [&](quint32, size_t) { isAny = true; });
    return isAny;
}

void LayoutTable::forEachClassRange(size_t classDefinition, const VisitRange &visit)
{
    const quint16 format = value(classDefinition);
    if (format == 1) {
        const quint32 first = value(classDefinition + 2);
        const quint32 count = value(classDefinition + 4);
        for (quint32 i = 0; i < count && !m_hasFailed; ++i)
            visit(first + i, first + i, value(classDefinition + 6 + 2 * static_cast<size_t>(i)));
        return;
    }
    if (format != 2)
        m_hasFailed = true;
    const size_t count = value(classDefinition + 2);
    for (size_t i = 0; i < count && !m_hasFailed; ++i) {
        const size_t range = classDefinition + 4 + 6 * i;
        visit(value(range), value(range + 2), value(range + 4));
    }
}

int LayoutTable::classOf(size_t classDefinition, quint32 glyph)
{
    int found = 0;
    forEachClassRange(classDefinition, [&](quint32 first, quint32 last, int value) {
        if (glyph >= first && glyph <= last)
            found = value;
    });
    return found;
}

std::vector<bool> LayoutTable::classesOf(size_t classDefinition, const hb_set_t *glyphs)
{
    std::vector<bool> classes(size_t{1} << 16);
    classes[0] = true;
    forEachClassRange(classDefinition, [&](quint32 first, quint32 last, int value) {
        hb_codepoint_t glyph = first == 0 ? HB_SET_VALUE_INVALID : first - 1;
        if (hb_set_next(glyphs, &glyph) && glyph <= last)
            classes[static_cast<size_t>(value)] = true;
    });
    return classes;
}
