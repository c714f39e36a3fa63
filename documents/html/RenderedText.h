// SPDX-License-Identifier: MIT
// RenderedText puts the text of a page together as it comes out of its boxes: collapses white space across
// elements (CSS Text, "white space processing"), turns required line breaks into line ends (HTML standard,
// "rendered text collection steps") and makes paragraphs of cells. Which boxes there are, HtmlText knows.
// Thread: one.
#pragma once

#include "documents/html/HtmlStyle.h"
#include "platform/styled_text/AttributedString.h"

#include <memory>

using SharedAttributes = std::shared_ptr<const TextAttributes>;

class RenderedText {
public:
    /// A piece of the text of the current line, with the white space of the page.
    void append(QStringView text, WhiteSpace whiteSpace, const SharedAttributes &attributes);
    /// A forced line break.
    void appendLineBreak(const SharedAttributes &attributes);

    /// At the start and end of a block container: collapsible space at either side vanishes.
    void startLine();
    /// At the start and end of a box in a line, before and behind what is in it: space on both sides stays.
    void placeBox();
    /// At the start and end of a block: so many line ends, or more where another one asks for them, stand
    /// here if there is text on both sides.
    void requireLineBreaks(int count);
    /// At the edges of a part of a formula: a space if there is text on both sides on the line.
    void standApart(const SharedAttributes &attributes) { append(u" ", WhiteSpace::Collapse, attributes); }

    /// At the start and end of a table's cell: what is in it, even if that is nothing, ends with one line end
    /// if anything stands behind it. Behind a table in the cell there is another paragraph, as in Word
    /// documents.
    void beginCell();
    void endCell(const SharedAttributes &attributes);

    /// Hands the text over and starts again with an empty one.
    [[nodiscard]] AttributedString build();

private:
    void appendCollapsing(QStringView text, bool keepsLineEnds, const SharedAttributes &attributes);
    void appendPendingSpace();
    void emitText(QStringView text, const SharedAttributes &attributes);
    [[nodiscard]] bool hasText() const { return m_runAttributes != nullptr; }
    /// Between the text so far and what follows.
    [[nodiscard]] qsizetype lineEndCount() const;
    void emitLineEnds(qsizetype count, const SharedAttributes &attributes);
    void flush();

    AttributedStringBuilder m_builder;
    QString m_run; ///< text that the builder has not got yet
    SharedAttributes m_runAttributes; ///< of m_run, or of the last text where that is empty; null before any
    QString m_collapsed; ///< room for a piece of text while it is worked on
    SharedAttributes m_pendingSpace; ///< attributes of a collapsible space that may turn out to end its line
    int m_requiredLineBreaks = 0;
    qsizetype m_cellLineEnds = 0; ///< of cells, for which no text has followed yet
    SharedAttributes m_cellAttributes; ///< of the last of them
    bool m_isAtCellStart = false; ///< no text in the cell yet
    bool m_isAtCellEdge = false; ///< no text since the start or the end of a cell
    QChar m_last; ///< of the text
    bool m_isAtLineStart = true;
};
