// SPDX-License-Identifier: MIT
// RenderedText assembles the text of a page from its boxes: it collapses white space across elements (CSS
// Text, "white space processing"), turns required line breaks into line ends (HTML standard, "rendered text
// collection steps") and cells into paragraphs. Finding the boxes is left to HtmlText.
// Thread: one.  Owner: HtmlText.
#pragma once

#include "documents/html/HtmlStyle.h"
#include "platform/styled_text/AttributedString.h"

#include <memory>

using SharedAttributes = std::shared_ptr<const TextAttributes>;

class RenderedText {
public:
    /// Appends text to the current line. text: with the white space of the page.
    void append(QStringView text, WhiteSpace whiteSpace, const SharedAttributes &attributes);
    /// Appends a forced line break.
    void appendLineBreak(const SharedAttributes &attributes);

    /// Call at the start and end of a block container. Collapsible space there is dropped.
    void startLine();
    /// Call at the start and end of an inline box. Space on both sides is kept.
    void placeBox();
    /// Call at the start and end of a block. If there is text on both sides, they are separated by the
    /// maximum count of line ends that was required between them.
    void requireLineBreaks(int count);
    /// Appends a collapsible space.
    void appendSpace(const SharedAttributes &attributes) { append(u" ", WhiteSpace::Collapse, attributes); }

    /// Call at the start and end of a table cell. Its text ends with one line end if text follows, even if
    /// the cell is empty. A table at the end of a cell is followed by an empty paragraph, as in Word
    /// documents.
    void beginCell();
    void endCell(const SharedAttributes &attributes);

    /// Returns the text and resets this object to an empty text.
    [[nodiscard]] AttributedString build();

private:
    void appendCollapsing(QStringView text, bool keepsLineEnds, const SharedAttributes &attributes);
    void appendPendingSpace();
    void emitText(QStringView text, const SharedAttributes &attributes);
    [[nodiscard]] bool hasText() const { return m_runAttributes != nullptr; }
    /// Line ends to write before text that follows.
    [[nodiscard]] qsizetype lineEndCount() const;
    void emitLineEnds(qsizetype count, const SharedAttributes &attributes);
    void flush();

    AttributedStringBuilder m_builder;
    QString m_run; ///< not appended to the builder yet
    SharedAttributes
        m_runAttributes; ///< of m_run, or of the last text if m_run is empty; null before any text
    QString m_collapsed; ///< a buffer for appendCollapsing()
    SharedAttributes m_pendingSpace; ///< attributes of a collapsible space; dropped if it ends its line
    int m_requiredLineBreaks = 0;
    qsizetype m_cellLineEnds = 0; ///< of cells that no text has followed yet
    SharedAttributes m_cellAttributes; ///< of the last of these cells
    bool m_isAtCellStart = false; ///< no text in the cell yet
    bool m_isAtCellEdge = false; ///< no text since the start or the end of a cell
    QChar m_last; ///< character of the text
    bool m_isAtLineStart = true;
};
