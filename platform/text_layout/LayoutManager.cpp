// SPDX-License-Identifier: MIT
#include "platform/text_layout/LayoutManager.h"

#include <algorithm>

namespace {

constexpr double maxSpacing = 10'000; // points

} // namespace

LayoutManager::LayoutManager(LayoutEngine &engine, const TextStorage &storage, const TextContainer &container)
    : m_engine(engine)
    , m_storage(storage)
    , m_container(container)
{
}

void LayoutManager::discardIfOutdated()
{
    const double width = clampNumber(m_container.width(), 0, 1e7);
    if (m_generation == m_storage.generation() && m_width == width)
        return;
    m_generation = m_storage.generation();
    m_width = width;
    m_fragments.clear();
    m_laidOutEnd = 0;
    m_bottom = 0;
}

void LayoutManager::layOutNextParagraph()
{
    const AttributedString &text = m_storage.attributedString();
    const Paragraph paragraph = paragraphAt(text.string(), m_laidOutEnd);
    const ParagraphStyle &style = text.attributesAt(paragraph.start).paragraphStyle;
    if (m_laidOutEnd > 0)
        m_bottom += clampNumber(style.paragraphSpacingBefore, 0, maxSpacing);
    m_engine.layOutParagraph(text, paragraph, m_width, [this](const LineFragment &line) {
        m_fragments.push_back({line, m_bottom});
        m_bottom += line.height;
    });
    m_bottom += clampNumber(style.paragraphSpacing, 0, maxSpacing);
    m_laidOutEnd = paragraph.end();
}

LayoutManager::LineFragmentRect LayoutManager::lineFragmentRectForGlyphAtIndex(qsizetype glyphIndex)
{
    if (glyphIndex < 0 || glyphIndex >= numberOfGlyphs())
        return {};
    discardIfOutdated();
    while (m_laidOutEnd <= glyphIndex)
        layOutNextParagraph();
    const auto behind = std::upper_bound(m_fragments.begin(), m_fragments.end(), glyphIndex,
        [](qsizetype wanted, const StoredFragment &fragment) { return wanted < fragment.line.start; });
    const auto &[line, top] = *(behind - 1);
    return {QRectF(0, top, m_width, line.height), QRectF(line.left, top, line.width, line.height),
        {line.start, line.length}};
}
