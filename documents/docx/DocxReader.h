// SPDX-License-Identifier: MIT
// DocxReader turns the bytes of a Word document (ECMA-376, transitional and strict: .docx, .docm, .dotx,
// .dotm) into styled text. Nothing outside of the package is fetched, no macro is run, no stored figure is
// believed.
// Thread: any.
//
// The text is what stands on the document's pages with every change accepted: the body, then its footnotes,
// then its endnotes, in the order of their references. In detail:
//  - Every paragraph ends in U+000A, the last one too; so an empty last paragraph is a line, as on paper.
//    The paragraphs of a table's cells and of nested tables are paragraphs like any other.
//  - A line break is U+2028, a page break U+000C, a column break U+000C too, a tabulator U+0009, a no-break
//    hyphen U+2011, a soft hyphen U+00AD. Symbols of the font Symbol are the characters that they depict;
//    those of other symbol fonts are in the private use area, as Word has them.
//  - Of a field stands its result, of ruby its base, of a content control its content, of a formula the
//    characters of its runs, with a space (U+0020) around each part of a fraction, cell of a matrix and
//    equation of an array, where there is no white space already.
//  - A text box stands once, behind the paragraph that anchors it. Of alternatives, the first one whose
//    namespaces are understood counts.
//  - Deleted and hidden text is no text, nor are headers, footers, comments, alternative texts of pictures,
//    charts and diagrams, the numbers of lists and notes. A paragraph whose mark is deleted, hidden or in
//    the instruction of a field goes on in the next one, and so does a drop cap, which Word stores as a
//    paragraph of its own.
//  - Chunks in other formats stand in their place: Word documents, web pages and archives of them, RTF and
//    plain text.
//
// Fonts and paragraph styles are those of the document's defaults, its table, paragraph and character styles,
// its lists and its direct formatting, with the fonts of its theme; each character has the font of its
// script.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArrayView>
#include <QString>

/// Whether the bytes are a package whose main part is a Word document, or an encrypted package of some kind.
/// Reads no more than the list of parts and the relationships of the package.
bool looksLikeDocx(QByteArrayView bytes);

/// Takes time proportional to the uncompressed parts that it reads, and memory proportional to the text.
Result<AttributedString, DocumentError> readDocx(QByteArrayView bytes);
