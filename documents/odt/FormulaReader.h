// SPDX-License-Identifier: MIT
// FormulaReader appends the text of a formula (MathML 3) to the open paragraph: its numbers, names and
// operators, with a space around each part of a fraction and each cell of a matrix.
// Thread: one at a time. Owner: ContentReader.
#pragma once

#include "documents/odt/StoryStack.h"

class FormulaReader final : public XmlHandler {
public:
    explicit FormulaReader(StoryStack &stories)
        : m_stories(stories)
    {
    }

    /// From the element math:math on; other documents, such as charts, have no text here.
    void startElement(const XmlElement &element) override;
    void endElement(XmlName name) override;
    void characters(QByteArrayView text) override;

    /// Whether all elements that have begun have ended.
    [[nodiscard]] bool isAtEnd() const { return m_depth == 0; }

private:
    [[nodiscard]] bool isSetApart(OdfName name) const;

    StoryStack &m_stories;
    int m_depth = 0;
    int m_skippedDepth = 0; // of the outermost skipped element; 0 if there is none
    int m_tokenDepth = 0; // of the open element with characters; 0 if there is none
    std::vector<int> m_fractions; // depths of the open ones, innermost last
};
