// SPDX-License-Identifier: MIT
// ParagraphProperties are the properties that a style, a list or a paragraph sets (ECMA-376, w:pPr); absent
// ones are left to other levels. StoryAssembler combines the levels.
// Thread: any; values.
#pragma once

#include "documents/docx/OfficeXml.h"
#include "platform/styled_text/TextAttributes.h"

#include <QByteArray>

#include <optional>
#include <vector>

struct ParagraphProperties {
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
    std::optional<int> list; ///< 0 for no list
    std::optional<int> listLevel;
    std::optional<bool> isDropCap; ///< enlarged first letters of the paragraph that follows
    QByteArray style; ///< the identifier of a paragraph style

    /// Sets the property of an element in w:pPr, except w:rPr. Ignores elements outside of Word's namespace.
    void read(const XmlElement &element);

    /// Replaces the properties that the other ones set.
    void overlay(const ParagraphProperties &other);

    /// pointSize: the font size of the paragraph mark.  defaultTabInterval: points.
    [[nodiscard]] ParagraphStyle paragraphStyle(double pointSize, double defaultTabInterval) const;

private:
    void readTab(const XmlElement &element);
    void readSpacing(const XmlElement &element);
    void readIndents(const XmlElement &element);
    void setTab(const Tab &tab);
};
