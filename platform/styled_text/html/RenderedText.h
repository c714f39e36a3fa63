// SPDX-License-Identifier: MIT
// RenderedText puts the text of a page together as it comes out of its boxes: collapses white space across
// elements (CSS Text, "white space processing") and turns required line breaks into line ends (HTML standard,
// "rendered text collection steps"). Which boxes there are, HtmlText knows.
// Thread: one.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "platform/styled_text/html/HtmlStyle.h"

#include <memory>

using SharedAttributes = std::shared_ptr<const TextAttributes>;

class RenderedText {
public:
    /// A piece of the text of the current line, with the white space of the page.
    void append(QStringView text, WhiteSpace whiteSpace, const SharedAttributes &attributes);
    /// A forced line break.
    void appendLineBreak(const SharedAttributes &attributes);
    /// What the standard puts between cells and between rows.
    void appendSeparator(QChar separator, const SharedAttributes &attributes);

    /// At the start and end of a block container: collapsible space at either side vanishes.
    void startLine();
    /// At the start and end of a box in a line, before and behind what is in it: space on both sides stays.
    void placeBox();
    /// At the start and end of a block: so many line ends, or more where another one asks for them, stand
    /// here if there is text on both sides.
    void requireLineBreaks(int count);

    /// Hands the text over and starts again with an empty one.
    [[nodiscard]] AttributedString build();

private:
    void appendCollapsing(QStringView text, bool keepsLineEnds, const SharedAttributes &attributes);
    void appendPendingSpace();
    void emitText(QStringView text, const SharedAttributes &attributes);
    void emitRequiredLineBreaks(const SharedAttributes &attributes);
    void flush();

    AttributedStringBuilder m_builder;
    QString m_run; ///< text that the builder has not got yet
    SharedAttributes m_runAttributes; ///< of m_run, or of the last text where that is empty; null before any
    QString m_collapsed; ///< room for a piece of text while it is worked on
    SharedAttributes m_pendingSpace; ///< attributes of a collapsible space that may turn out to end its line
    int m_requiredLineBreaks = 0;
    bool m_isAtLineStart = true;
};
