// SPDX-License-Identifier: MIT
// PageCounter fills pages with the lines of a text as the layout engine sets them, each as high as its fonts
// need, and counts the pages. It knows no widows, orphans or notes at the foot of a page.
// Thread: that of the engine.  Owner: the code that counts; of one text.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "platform/text_layout/LayoutEngine.h"
#include "text_statistics/CountingRules.h"

/// The height of the column between the margins, in points; 0 if they leave none.
double columnHeightOf(const PageRules &page);

/// Each page has one line at least, so a column without height gives a page to every line.
class PageCounter {
public:
    /// columnHeight: points.
    explicit PageCounter(double columnHeight)
        : m_columnHeight(columnHeight)
    {
    }

    // Points. Space at the top of a page is left out, and space at its end starts no new page.
    void addLine(double height);
    void addSpace(double height);
    /// What follows starts a new page.
    void endPage();

    [[nodiscard]] quint64 pages() const { return m_pages; }

private:
    double m_columnHeight;
    double m_used = 0; // of the open page
    bool m_isPageOpen = false;
    quint64 m_pages = 0;
};

/// The pages that a text takes; 0 for an empty one. columnWidth, columnHeight: points. A form feed (U+000C)
/// ends a page.
quint64 numberOfPages(
    LayoutEngine &engine, const AttributedString &text, double columnWidth, double columnHeight);
