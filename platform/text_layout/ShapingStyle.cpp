// SPDX-License-Identifier: MIT
#include "platform/text_layout/ShapingStyle.h"

#include <hb-ot.h>
#include <hb.h>

#include <array>

namespace {

// Letters that are set apart are not tied together either. The two features are the ones that are on of
// themselves; ligatures that a script demands stay.
const std::array<hb_feature_t, 2> withoutLigatures{
    hb_feature_t{HB_TAG('l', 'i', 'g', 'a'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END},
    hb_feature_t{HB_TAG('c', 'l', 'i', 'g'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END}};

bool hasLigatures(const TextRun &run)
{
    return run.style.tracking == 0;
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

ShapingStyle::ShapingStyle(const TextRun &run)
    : m_face(*run.face)
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
