// SPDX-License-Identifier: MIT
// LayoutManager holds the line fragments of a text storage in a text container, as far as they have been
// requested. Layout itself is left to LayoutEngine.
// Thread: one at a time.  Owner: the caller; refers to engine, storage and container, which must outlive it.
#pragma once

#include "platform/text_layout/LayoutEngine.h"
#include "platform/text_layout/TextStorage.h"

#include <QRectF>

#include <optional>
#include <vector>

/// Every UTF-16 code unit of the text counts as one glyph with the same index, including line ends and every
/// part of a grapheme cluster or ligature.
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
        QRectF usedRect; ///< the part with text, without hanging blanks
        GlyphRange effectiveRange; ///< all glyphs of the line
    };
    /// The line that contains a glyph (0 to numberOfGlyphs() - 1; otherwise an empty result). Lays out
    /// everything before it, too. The empty line after a final line end has no glyph.
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
    double m_bottom = 0; // of the last fragment, with the space below it
    double m_width = 0; // of the container when the fragments were made
    std::optional<quint64> m_generation; // of the storage when they were made
};
