// SPDX-License-Identifier: MIT
// DocxReader turns the bytes of a Word document (ECMA-376, transitional and strict: .docx, .docm, .dotx,
// .dotm) into styled text. Resources outside of the package are not fetched, macros are not run, and stored
// statistics are ignored.
// Thread: any.
//
// The text is that of the pages with all changes accepted: the body, then the footnotes, then the endnotes,
// in the order of their references.
//  - Every paragraph ends with U+000A, including the last one. An empty last paragraph is therefore a line,
//    as on paper. The paragraphs of table cells and of nested tables are paragraphs like any other.
//  - A line break is U+2028, a page break or column break U+000C, a tabulator U+0009, a no-break hyphen
//    U+2011, a soft hyphen U+00AD. Symbols of the font Symbol become the characters that they show; those
//    of other symbol fonts stay private characters.
//  - Fields are replaced by their results, ruby by its base text, content controls by their content.
//    Formulas are the text of their runs, with a space (U+0020) around each part of a fraction, cell of a
//    matrix and equation of an array that has no white space there.
//  - A text box appears once, after the paragraph that anchors it. Of alternatives, the first one whose
//    namespaces are supported is read.
//  - Not text are deleted and hidden text, headers, footers, comments, alternative texts of pictures,
//    charts, diagrams, and the numbers of lists and notes. A paragraph continues in the next one if its
//    mark is deleted, hidden or in a field instruction, or if it is a drop cap, which Word stores as a
//    paragraph of its own.
//  - Chunks in other formats are read in their place: Word documents, web pages, web archives, RTF and
//    plain text.
//
// Fonts and paragraph styles combine the defaults of the document, its table, paragraph and character styles,
// its lists, its direct formatting and the fonts of its theme. Each character has the font of its script.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

#include <functional>

/// Reads a chunk of another kind that a Word document holds. charset: of a web page from an archive; empty
/// where it is not known.
using ChunkReader = std::function<Result<AttributedString, DocumentError>(
    DocumentKind kind, QByteArrayView bytes, const QByteArray &charset)>;

/// Takes time proportional to the uncompressed parts that are read, and memory proportional to the text.
/// A Word document in one XML file fails as FlatWordDocument.
Result<AttributedString, DocumentError> readDocx(QByteArrayView bytes, const ChunkReader &readChunk);
