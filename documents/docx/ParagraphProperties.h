// SPDX-License-Identifier: MIT
// ParagraphProperties are the properties that a style, a list or a paragraph sets (ECMA-376, w:pPr); absent
// ones are left to other levels. StoryAssembler combines the levels.
// Thread: any; values.
#pragma once

#include "documents/docx/OfficeXml.h"
#include "documents/package/ParagraphFormat.h"

#include <QByteArray>

#include <optional>

struct ParagraphProperties : ParagraphFormat {
    std::optional<int> list; ///< 0 for no list
    std::optional<int> listLevel;
    std::optional<bool> isDropCap; ///< enlarged first letters of the paragraph that follows
    QByteArray style; ///< the identifier of a paragraph style

    /// Sets the property of an element in w:pPr, except w:rPr. Ignores elements outside of Word's namespace.
    void read(const XmlElement &element);

    /// Replaces the properties that the other ones set.
    void overlay(const ParagraphProperties &other);

private:
    void readTab(const XmlElement &element);
    void readSpacing(const XmlElement &element);
    void readIndents(const XmlElement &element);
};
