// SPDX-License-Identifier: MIT
// TextStorage holds the text that a layout manager lays out; TextContainer is the column that it is laid out
// in.
// Thread: one at a time.  Owner: whoever makes them; a layout manager only refers to them.
#pragma once

#include "platform/styled_text/AttributedString.h"

class TextStorage {
public:
    [[nodiscard]] const AttributedString &attributedString() const { return m_attributedString; }

    /// Replaces the whole content. Layout managers notice by themselves.
    void setAttributedString(const AttributedString &attributedString)
    {
        m_attributedString = attributedString;
        ++m_generation;
    }

    /// Another number after every change.
    [[nodiscard]] quint64 generation() const { return m_generation; }

private:
    AttributedString m_attributedString;
    quint64 m_generation = 0;
};

/// Without insets and padding; as high as its text.
class TextContainer {
public:
    [[nodiscard]] double width() const { return m_width; }
    /// width: points; a negative one is as good as 0.
    void setWidth(double width) { m_width = width; }

private:
    double m_width = 0;
};
