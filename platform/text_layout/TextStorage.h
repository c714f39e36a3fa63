// SPDX-License-Identifier: MIT
// TextStorage holds the text that a layout manager lays out, TextContainer the width of its column.
// Thread: one at a time.  Owner: the caller; a layout manager only refers to them.
#pragma once

#include "platform/styled_text/AttributedString.h"

class TextStorage {
public:
    [[nodiscard]] const AttributedString &attributedString() const { return m_attributedString; }

    /// Replaces the whole content. Layout managers detect the change.
    void setAttributedString(const AttributedString &attributedString)
    {
        m_attributedString = attributedString;
        ++m_generation;
    }

    /// Increases at every change.
    [[nodiscard]] quint64 generation() const { return m_generation; }

private:
    AttributedString m_attributedString;
    quint64 m_generation = 0;
};

/// Has no insets and no padding, and the height of its text.
class TextContainer {
public:
    [[nodiscard]] double width() const { return m_width; }
    /// width: points; negative values count as 0.
    void setWidth(double width) { m_width = width; }

private:
    double m_width = 0;
};
