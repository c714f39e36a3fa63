// SPDX-License-Identifier: MIT
// FormulaParts finds the parts of a formula (ECMA-376, Office Math) that stand apart from their neighbours on
// the page: numerator and denominator of a fraction, the cells of a matrix, the lines of an equation array.
// Thread: one at a time.  Owner: StoryReader.
#pragma once

#include "documents/docx/XmlNames.h"

#include <vector>

class FormulaParts {
public:
    /// Both are called for each element of a formula, with its depth in the document. True for an element
    /// that stands apart.
    bool startElement(XmlTag tag, int depth);
    bool endElement(XmlTag tag, int depth);

private:
    [[nodiscard]] bool standsApart(XmlTag tag, int depth) const;

    std::vector<int> m_rows; // depths of the open rows of matrices and equation arrays, innermost last
};
