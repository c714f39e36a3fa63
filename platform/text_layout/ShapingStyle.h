// SPDX-License-Identifier: MIT
// ShapingStyle is what decides the shaping of a text besides the text: font, script, direction, language,
// ligatures. It holds the shaper's plan for them. Sizes do not matter: advances are in font units.
// Thread: one at a time.  Owner: Shaper.
#pragma once

#include "platform/text_layout/TextRun.h"

#include <memory>
#include <tuple>

typedef struct hb_shape_plan_t hb_shape_plan_t;
typedef struct hb_buffer_t hb_buffer_t;

class ShapingStyle {
public:
    using Key = std::tuple<const FontFace *, quint32, bool, bool, QByteArray>;

    /// The run is Text with a face.
    explicit ShapingStyle(const TextRun &run);
    [[nodiscard]] static Key keyOf(const TextRun &run);

    /// Shapes a buffer of Unicode text and leaves glyphs in it.
    void shape(hb_buffer_t *buffer) const;

private:
    struct PlanDeleter {
        void operator()(hb_shape_plan_t *plan) const;
    };

    const FontFace &m_face;
    quint32 m_script;
    bool m_isRightToLeft;
    bool m_hasLigatures;
    QByteArray m_language;
    std::unique_ptr<hb_shape_plan_t, PlanDeleter> m_plan;
};
