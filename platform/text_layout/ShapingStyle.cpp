// SPDX-License-Identifier: MIT
#include "platform/text_layout/ShapingStyle.h"

#include "platform/segmentation/GraphemeClusters.h"
#include "platform/segmentation/ScriptRuns.h"

#include <hb-ot.h>
#include <hb.h>

#include <array>

namespace {

// Letter-spaced text has no ligatures. These two features are on by default; ligatures that a script requires
// stay.
const std::array<hb_feature_t, 2> withoutLigatures{
    hb_feature_t{HB_TAG('l', 'i', 'g', 'a'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END},
    hb_feature_t{HB_TAG('c', 'l', 'i', 'g'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END}};

bool hasLigatures(const TextRun &run)
{
    return run.style.tracking == 0;
}

bool hasJoiningLetters(quint32 script)
{
    switch (hb_script_from_iso15924_tag(script)) {
    case HB_SCRIPT_COMMON:
    case HB_SCRIPT_LATIN:
    case HB_SCRIPT_GREEK:
    case HB_SCRIPT_CYRILLIC:
    case HB_SCRIPT_ARMENIAN:
    case HB_SCRIPT_GEORGIAN:
    case HB_SCRIPT_HEBREW:
    case HB_SCRIPT_HAN:
    case HB_SCRIPT_HIRAGANA:
    case HB_SCRIPT_KATAKANA:
    case HB_SCRIPT_BOPOMOFO:
    case HB_SCRIPT_HANGUL:
    case HB_SCRIPT_DEVANAGARI:
    case HB_SCRIPT_BENGALI:
    case HB_SCRIPT_GURMUKHI:
    case HB_SCRIPT_GUJARATI:
    case HB_SCRIPT_ORIYA:
    case HB_SCRIPT_TAMIL:
    case HB_SCRIPT_TELUGU:
    case HB_SCRIPT_KANNADA:
    case HB_SCRIPT_MALAYALAM:
    case HB_SCRIPT_THAI:
    case HB_SCRIPT_LAO:
    case HB_SCRIPT_KHMER:
    case HB_SCRIPT_MYANMAR:
        return false;
    default:
        return true; // of many it is true, and the rest are rare
    }
}

} // namespace

void ShapingStyle::PlanDeleter::operator()(hb_shape_plan_t *plan) const
{
    hb_shape_plan_destroy(plan);
}

ShapingStyle::Key ShapingStyle::keyOf(const TextRun &run)
{
    return {run.face, run.script, run.isRightToLeft, hasLigatures(run), run.style.language};
}

ShapingStyle::ShapingStyle(const TextRun &run, quint32 number)
    : m_number(number)
    , m_mayHaveJoiningLetters(hasJoiningLetters(run.script))
    , m_face(*run.face)
    , m_script(run.script)
    , m_isRightToLeft(run.isRightToLeft)
    , m_hasLigatures(hasLigatures(run))
    , m_language(run.style.language)
{
    hb_segment_properties_t properties = HB_SEGMENT_PROPERTIES_DEFAULT;
    properties.direction = m_isRightToLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR;
    properties.script = hb_script_from_iso15924_tag(m_script);
    properties.language =
        hb_language_from_string(m_language.constData(), static_cast<int>(m_language.size()));
    const auto featureCount = m_hasLigatures ? 0U : static_cast<unsigned>(withoutLigatures.size());
    hb_font_t *font = m_face.shapingFont();
    unsigned coordinateCount = 0;
    const int *coordinates = hb_font_get_var_coords_normalized(font, &coordinateCount);
    m_plan.reset(hb_shape_plan_create_cached2(hb_font_get_face(font), &properties, withoutLigatures.data(),
        featureCount, coordinates, coordinateCount, nullptr));

    hb_codepoint_t space = 0;
    if (!glyphOf(U' ', space))
        return;
    m_spaceAdvance = static_cast<float>(hb_font_get_glyph_h_advance(font, space));
    m_areWordsSeparable = isOfOpenTypeRules() && !hb_set_has(namedGlyphs().get(), space);
    if (mayReadClusterRules())
        readClusterRules();
}

// Scripts in which letters neither join nor move, and whose words are not separated by spaces. Without rules
// for Thai in the font, HarfBuzz has its own.
bool ShapingStyle::mayReadClusterRules() const
{
    const hb_script_t script = hb_script_from_iso15924_tag(m_script);
    if (script != HB_SCRIPT_THAI && script != HB_SCRIPT_LAO)
        return false;
    const hb_tag_t tag = script == HB_SCRIPT_THAI ? HB_TAG('t', 'h', 'a', 'i') : HB_TAG('l', 'a', 'o', ' ');
    unsigned index = 0;
    return !m_isRightToLeft && isOfOpenTypeRules() && !mayHaveKerningTable()
        && hb_ot_layout_table_find_script(
            hb_font_get_face(m_face.shapingFont()), HB_OT_TAG_GSUB, tag, &index);
}

void ShapingStyle::readClusterRules()
{
    hb_face_t *face = hb_font_get_face(m_face.shapingFont());
    const GlyphSet characters = makeGlyphSet();
    hb_face_collect_unicodes(face, characters.get());
    const GlyphSet bases = makeGlyphSet();
    const GlyphSet marks = makeGlyphSet();
    hb_codepoint_t character = HB_SET_VALUE_INVALID;
    while (hb_set_next(characters.get(), &character)) {
        const quint32 script = scriptOf(character);
        hb_codepoint_t glyph = 0;
        if ((script == sharedScript || script == m_script) && glyphOf(character, glyph))
            hb_set_add(continuesGraphemeCluster(character) ? marks.get() : bases.get(), glyph);
    }
    m_clusterRules = ::readClusterRules(face, bases.get(), marks.get());
}

bool ShapingStyle::areClustersPlain(QStringView clusters) const
{
    constexpr char16_t fractionSlash = 0x2044;
    for (qsizetype at = 0; at < clusters.size();) {
        const char32_t character = codePointAt(clusters, at);
        const quint32 script = scriptOf(character);
        hb_codepoint_t glyph = 0;
        if ((script != sharedScript && script != m_script) || !glyphOf(character, glyph)
            || hb_set_has(m_clusterRules.excluded.get(), glyph) || isDefaultIgnorable(character)
            || character == fractionSlash)
            return false;
        at += character > 0xFFFF ? 2 : 1;
    }
    return m_clusterRules.areSimple;
}

bool ShapingStyle::hasTable(quint32 tag, bool onlyOfVersionOne) const
{
    hb_blob_t *table = hb_face_reference_table(hb_font_get_face(m_face.shapingFont()), tag);
    unsigned length = 0;
    const char *data = hb_blob_get_data(table, &length);
    const bool isThere = length > 1 && (!onlyOfVersionOne || data[1] == 1);
    hb_blob_destroy(table);
    return isThere;
}

bool ShapingStyle::mayHaveKerningTable() const
{
    return hasTable(HB_TAG('k', 'e', 'r', 'n'), false);
}

// AAT tables are state machines over any number of glyphs, which HarfBuzz does not list. A 'kern' table of
// version 1 is one, too; one of version 0 has only pairs.
bool ShapingStyle::hasStateMachines() const
{
    return hasTable(HB_TAG('m', 'o', 'r', 'x'), false) || hasTable(HB_TAG('m', 'o', 'r', 't'), false)
        || hasTable(HB_TAG('k', 'e', 'r', 'x'), false) || hasTable(HB_TAG('k', 'e', 'r', 'n'), true);
}

bool ShapingStyle::glyphOf(char32_t character, quint32 &glyph) const
{
    return hb_font_get_nominal_glyph(m_face.shapingFont(), character, &glyph);
}

// Fonts with tables of Graphite have another shaper, where it is built in.
bool ShapingStyle::isOfOpenTypeRules() const
{
    return !hasStateMachines() && qstrcmp(hb_shape_plan_get_shaper(m_plan.get()), "graphite2") != 0;
}

FontRules ShapingStyle::rulesFor(const hb_set_t *glyphs) const
{
    return readFontRules(hb_font_get_face(m_face.shapingFont()), m_plan.get(), glyphs);
}

GlyphSet ShapingStyle::namedGlyphs() const
{
    return glyphsNamedByRules(hb_font_get_face(m_face.shapingFont()), m_plan.get());
}

void ShapingStyle::shape(hb_buffer_t *buffer) const
{
    hb_buffer_set_direction(buffer, m_isRightToLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer, hb_script_from_iso15924_tag(m_script));
    hb_buffer_set_language(
        buffer, hb_language_from_string(m_language.constData(), static_cast<int>(m_language.size())));
    const auto featureCount = m_hasLigatures ? 0U : static_cast<unsigned>(withoutLigatures.size());
    hb_shape_plan_execute(m_plan.get(), m_face.shapingFont(), buffer, withoutLigatures.data(), featureCount);
}
