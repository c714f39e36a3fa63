// SPDX-License-Identifier: MIT
// ParagraphProperties are what a style, a list or a paragraph says of how its lines are set (ECMA-376,
// w:pPr); what it leaves open, others decide.
// Thread: any; values.
#pragma once

#include "documents/docx/XmlReader.h"
#include "platform/styled_text/TextAttributes.h"

#include <QByteArray>

#include <optional>
#include <vector>

struct ParagraphProperties {
    enum class Alignment { Leading, Trailing, Center, Justified };
    struct Tab {
        double position;
        std::optional<TabAlignment> alignment; ///< absent: the stop that others set here is none
    };

    std::optional<Alignment> alignment;
    std::optional<bool> isRightToLeft;
    std::optional<double> leadingIndent; // points, all of them
    std::optional<double> trailingIndent;
    std::optional<double> firstLineIndent; ///< from the leading indent; negative: the others hang
    std::optional<double> spaceBefore;
    std::optional<double> spaceAfter;
    std::optional<double> lineHeight; ///< of a line of one point: a factor where isFactor, else points
    bool isLineHeightFactor = true;
    std::vector<Tab> tabs; ///< ascending by position, one at each
    std::optional<int> list; ///< 0: none
    std::optional<int> listLevel;
    std::optional<bool> isDropCap; ///< the enlarged first letters of the paragraph that follows
    QByteArray style; ///< the identifier of a paragraph style

    /// Takes in one element from within w:pPr, but for w:rPr; others than Word's are left alone.
    void take(const XmlElement &element);

    /// What the other properties say, replaces what these say.
    void overlay(const ParagraphProperties &other);

    /// pointSize: of the paragraph's font; defaultTabInterval: points.
    [[nodiscard]] ParagraphStyle paragraphStyle(double pointSize, double defaultTabInterval) const;

private:
    void takeTab(const XmlElement &element);
    void takeSpacing(const XmlElement &element);
    void takeIndents(const XmlElement &element);
    void setTab(const Tab &tab);
};
