// SPDX-License-Identifier: MIT
// OdtReader turns the bytes of an OpenDocument text (OASIS OpenDocument 1.0 to 1.3: .odt, .ott, .odm, .fodt),
// a package or one flat file, into styled text. Nothing outside of the document is fetched, macros are not
// run, and stored statistics are ignored.
// Thread: any.
//
// The text is that of the pages with all changes accepted: the body, then the footnotes, then the endnotes,
// in the order of their references.
//  - Every paragraph ends with U+000A, including the last one. The paragraphs of table cells and of nested
//    tables are paragraphs like any other; a cell without any is an empty one. A cell that another one covers
//    is not read.
//  - White space is collapsed as LibreOffice does. A space element is as many spaces, a line break U+2028, a
//    tabulator U+0009. Symbols of the font Symbol become the characters that they show.
//  - Fields are replaced by the text that they showed last, ruby by its base text. Indexes are text.
//    Formulas are their numbers, names and operators, with a space (U+0020) around each part of a fraction
//    and each cell of a matrix.
//  - A text box appears once, after the paragraph that anchors it, and where it is anchored to a page, at the
//    place of its element.
//  - Not text are deleted and hidden text, hidden sections, headers, footers, comments, pictures with their
//    alternative texts, charts and other objects, and the numbers of lists, headings and notes. A paragraph
//    disappears if all of its text is hidden.
//
// Fonts and paragraph styles combine the default styles, the named and automatic styles with what they
// inherit, and the levels of lists. Each character has the font of its script.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArrayView>

/// Takes time proportional to the uncompressed parts that are read, and memory proportional to the text and
/// the styles.
Result<AttributedString, DocumentError> readOpenDocument(QByteArrayView bytes);
