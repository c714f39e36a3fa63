// SPDX-License-Identifier: MIT
// Box is a plain area of one colour, or a separator: a thin line along its longer side in the colour that the
// user's theme gives such lines. Thread: main.  Owner: its superview or window.
#pragma once

#include "platform/views/Color.h"
#include "platform/views/View.h"

#include <optional>

class Box : public View {
    Q_OBJECT

public:
    enum class Kind { Plain, Separator };

    explicit Box(Kind kind = Kind::Plain, const QRectF &frame = {})
        : View(frame)
        , m_kind(kind)
    {
    }

    [[nodiscard]] Kind kind() const { return m_kind; }
    void setKind(Kind kind);

    /// Of a plain box; absent: nothing is painted.
    [[nodiscard]] const std::optional<Color> &backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const std::optional<Color> &color);

    void drawRect(const QRectF &dirtyRect, Painter &painter) override;

private:
    Kind m_kind;
    std::optional<Color> m_backgroundColor;
};
