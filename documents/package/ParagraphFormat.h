// SPDX-License-Identifier: MIT
// ParagraphFormat is the format that a style, a list or a paragraph sets; absent values are left to other
// levels. Which levels there are, and their order, is left to the reader of the format.
// Thread: any; values.
#pragma once

#include "documents/package/XmlValues.h"
#include "platform/styled_text/TextAttributes.h"

#include <optional>
#include <vector>

struct ParagraphFormat {
    enum class Alignment { Leading, Trailing, Center, Justified };
    struct Tab {
        double position;
        std::optional<TabAlignment> alignment; ///< absent: clears the stop at this position
    };

    std::optional<Alignment> alignment;
    std::optional<bool> isRightToLeft;
    // Lengths are points.
    std::optional<double> leadingIndent;
    std::optional<double> trailingIndent;
    std::optional<double> firstLineIndent; ///< relative to the leading indent; negative for a hanging indent
    std::optional<double> spaceBefore;
    std::optional<double> spaceAfter;
    std::optional<double> lineHeight; ///< a multiple of a single line if isLineHeightFactor, else points
    bool isLineHeightFactor = true;
    std::vector<Tab> tabs; ///< ascending by position; positions are distinct

    /// Adds a tab stop, or replaces the one at its position. Ignored beyond the 64 stops that Word has at
    /// most.
    void setTab(const Tab &tab);

    /// Replaces the values that the other format sets.
    void overlay(const ParagraphFormat &other);

    /// pointSize: the font size at the end of the paragraph.  defaultTabInterval: points.
    [[nodiscard]] ParagraphStyle paragraphStyle(double pointSize, double defaultTabInterval) const;
};
