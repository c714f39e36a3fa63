// SPDX-License-Identifier: MIT
// ParagraphMemory remembers the counts of paragraphs, so that counting a text again after an edit costs what
// has changed. It knows paragraphs by a hash of their text, their style and the rules, and stores none of
// their content. Counting is left to WordCounterModel.
// Thread: one at a time.  Owner: WordCounterModel, whose fonts do not change during its life.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "platform/system/ContentHash.h"
#include "text_statistics/CountedPiece.h"
#include "text_statistics/CountingRules.h"

#include <QCache>
#include <QHash>

#include <functional>
#include <span>
#include <vector>

/// Remembers pieces of some paragraphs each. A piece ends where the content of a paragraph says so, wherever
/// the paragraph is, so that an edit changes one piece or two.
class ParagraphMemory {
public:
    // UTF-16 code units; of one long paragraph or of many short ones.
    static constexpr qsizetype minPieceLength = 1024;
    static constexpr qsizetype maxPieceLength = 16'384; ///< more only in a single paragraph
    /// Pieces, of at most 200 bytes of memory each. Beyond that, the least recently used are forgotten.
    static constexpr qsizetype capacity = 65'536;
    /// Bytes of all styles together, about. Beyond that, everything is forgotten.
    static constexpr qsizetype maxStyleBytes = 1 << 20;

    /// Fills in the counts of all pieces.
    using CountPieces = std::function<void(std::span<CountedPiece> pieces)>;

    /// The counts of the text: the sum over its pieces. countPieces: called with those that are not
    /// remembered, equal ones once. columnWidth: points.
    QBYWordCounterStats count(const AttributedString &text, const TextRules &rules, double columnWidth,
        const CountPieces &countPieces);

private:
    /// Calls take(start, end, hash) for every piece.
    template <typename Take>
    void forEachPiece(const AttributedString &text, const ContentHash &rulesHash, Take &&take);
    [[nodiscard]] quint64 styleNumberOf(TextAttributes attributes);
    std::vector<quint64> styleNumbersOf(const AttributedString &text);

    QCache<ContentHash, QBYWordCounterStats> m_counts{capacity};
    QHash<TextAttributes, quint64> m_styles; // numbers that are never used twice
    qsizetype m_styleBytes = 0;
    quint64 m_lastStyle = 0;
};
