// SPDX-License-Identifier: MIT
#include "text_statistics/PageCounter.h"

#include "platform/segmentation/Paragraphs.h"

#include <algorithm>

namespace {

constexpr double maxHeight = 1'000'000; // points; documents may ask for anything

double heightFrom(double height)
{
    return height > 0 ? std::min(height, maxHeight) : 0; // not for NaN either
}

bool endsWithFormFeed(const AttributedString &text, const LineFragment &line)
{
    return line.length > 0 && text.string().at(line.start + line.length - 1) == u'\f';
}

} // namespace

double columnHeightOf(const PageRules &page)
{
    return std::max(0.0, page.paperSize.height() - page.topMargin - page.bottomMargin);
}

void PageCounter::addLine(double height)
{
    // Sums of rounded heights must not open a page for the last line that just fits.
    constexpr double tolerance = 0.01;
    height = heightFrom(height);
    if (m_isPageOpen && m_used + height > m_columnHeight + tolerance)
        endPage();
    if (!m_isPageOpen) {
        m_isPageOpen = true;
        m_used = 0;
        ++m_pages;
    }
    m_used += height;
}

void PageCounter::addSpace(double height)
{
    if (m_isPageOpen)
        m_used += heightFrom(height);
}

void PageCounter::endPage()
{
    m_isPageOpen = false;
}

quint64 numberOfPages(
    LayoutEngine &engine, const AttributedString &text, double columnWidth, double columnHeight)
{
    PageCounter counter(columnHeight);
    forEachParagraph(text.string(), [&](const Paragraph &paragraph) {
        const ParagraphStyle &style = text.attributesAt(paragraph.start).paragraphStyle;
        counter.addSpace(style.paragraphSpacingBefore);
        engine.layOutParagraph(text, paragraph, columnWidth, [&](const LineFragment &line) {
            counter.addLine(line.height);
            if (endsWithFormFeed(text, line))
                counter.endPage();
        });
        counter.addSpace(style.paragraphSpacing);
    });
    return counter.pages();
}
