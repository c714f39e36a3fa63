// SPDX-License-Identifier: MIT
// StyleCascade finds what the style sheets of a page declare for each element, while HtmlText walks its tree
// (CSS Cascade: importance, specificity, order).
// Thread: one.  Owner: HtmlText. The sheets must outlive it.
#pragma once

#include "documents/html/StyleSheets.h"

#include <gumbo.h>

class StyleCascade {
public:
    /// pageLength: bytes; the time for matching is proportional to it at most.
    StyleCascade(const StyleSheets &sheets, qsizetype pageLength);

    /// The display and visibility that apply to an element, a child of the one entered last and not left.
    HidingProperties enter(const GumboElement &element);
    void leave();

    /// Whether matching takes time out of proportion to the length of the page. No more rules apply then.
    [[nodiscard]] bool isTooComplex() const { return m_steps < 0; }

private:
    struct Element {
        int tag = CssNames::none;
        int id = CssNames::none;
        std::vector<int> classes; ///< those that selectors contain; ascending
    };

    [[nodiscard]] Element elementOf(const GumboElement &element) const;
    void apply(const StyleSheets::Indices &rules);
    [[nodiscard]] bool doesMatch(const CssSelector &selector);
    [[nodiscard]] static bool doesMatch(const CssCompound &compound, const Element &element);

    const StyleSheets &m_sheets;
    std::vector<Element> m_path; ///< open elements, outermost first
    HidingProperties m_declared; ///< for the last element of the path
    quint64 m_displayPriority = 0;
    quint64 m_visibilityPriority = 0;
    qint64 m_steps; ///< left; one for each compound and element compared
};
