// SPDX-License-Identifier: MIT
// MarkdownReader turns the bytes of a text in Markdown (CommonMark 0.30) into its prose, so that marks are
// not counted. Without it, Markdown is plain text, with its marks.
// Thread: any.
//
// The text is what a reader of the rendered page sees, without styles:
//  - Headings, paragraphs, items of lists and block quotes end with U+000A. A line end within a paragraph
//    is a space, a hard one U+2028.
//  - Links have their text, images their description, code within a line its text.
//  - In a table, each cell is a paragraph, as in all formats. Its row of dashes is left out.
//  - Not text are front matter (between lines of --- or +++ at the start), comments, HTML tags with scripts
//    and style sheets, code blocks, link targets and titles, definitions of links, thematic breaks, the
//    numbers and bullets of lists, the boxes of tasks, and the marks of footnotes.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

/// charset: as of readPlainText(). Fails as TooComplex where the parser runs out of memory.
Result<AttributedString, DocumentError> readMarkdown(QByteArrayView bytes, const QByteArray &charset = {});
