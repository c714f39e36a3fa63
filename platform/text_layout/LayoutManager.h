// SPDX-License-Identifier: MIT
// LayoutManager keeps the line fragments of a text storage in a text container, laid out as far as they have
// been asked for.
// Thread: one at a time.  Owner: whoever makes it; refers to engine, storage and container, which must
// outlive it.
#pragma once

#include "platform/text_layout/LayoutEngine.h"
#include "platform/text_layout/TextStorage.h"

#include <QRectF>

#include <optional>
#include <vector>

/// Every UTF-16 code unit of the text has one glyph at its own index: line ends too, and the parts of a
/// grapheme cluster or ligature each.
struct GlyphRange {
    qsizetype start = 0;
    qsizetype length = 0;

    [[nodiscard]] qsizetype end() const { return start + length; }
    bool operator==(const GlyphRange &) const = default;
};

class LayoutManager {
public:
    LayoutManager(LayoutEngine &engine, const TextStorage &storage, const TextContainer &container);

    /// 0 for an empty text.
    [[nodiscard]] qsizetype numberOfGlyphs() const { return m_storage.attributedString().length(); }

    struct LineFragmentRect {
        QRectF rect; ///< points, from the container's top left; as wide as the container
        QRectF usedRect; ///< the part with text, without blanks at the end
        GlyphRange effectiveRange; ///< all glyphs of the line
    };
    /// The line with a glyph (0 to numberOfGlyphs() - 1; for others an empty one). Lays out what stands
    /// before it too. The empty line behind a final line end has no glyph.
    LineFragmentRect lineFragmentRectForGlyphAtIndex(qsizetype glyphIndex);

private:
    struct StoredFragment {
        LineFragment line;
        double top;
    };

    void discardIfOutdated();
    void layOutNextParagraph();

    LayoutEngine &m_engine;
    const TextStorage &m_storage;
    const TextContainer &m_container;
    std::vector<StoredFragment> m_fragments;
    qsizetype m_laidOutEnd = 0; // glyph index
    double m_bottom = 0; // of the last fragment and the space below it
    double m_width = 0; // for which the fragments hold
    std::optional<quint64> m_generation; // for which they hold
};
