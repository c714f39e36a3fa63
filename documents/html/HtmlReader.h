// SPDX-License-Identifier: MIT
// HtmlReader turns the bytes of a web page into styled text. What a page names (style sheets, images, frames,
// scripts) is neither fetched nor run.
// Thread: any.
//
// The text is what the innerText attribute of the page's root element would be by the HTML standard
// ("rendered text collection steps") under the standard's own style sheet: lines end in U+000A, a paragraph
// (p) is set off by an empty line, white space collapses, no-break spaces and soft hyphens stay. Where the
// standard leaves a choice, or this reader differs:
//  - Every cell of a table ends a paragraph, an empty one too, in place of the tabulators and line ends of
//    the standard; blocks at its edges are not set off. A table that ends a cell is followed by an empty
//    paragraph. So a table has the same text as in Word documents and RTF.
//  - The parts of a fraction and the cells of a matrix of MathML have a space (U+0020) around them where
//  there
//    is no white space already.
//  - Style attributes count, for the properties that HtmlStyleAttribute.h lists; style sheets do not.
//    text-transform, generated content (quotation marks of q, list markers, numbers) and images with their
//    alternative texts give no text.
//  - Scripts count as running elsewhere: noscript is hidden. What is in a details element that is not open,
//    in a dialog that is not, or in a popover is hidden. The content of object, audio, video, canvas, iframe,
//    meter and progress elements, which is there for browsers that do not know them, never shows.
//  - The text of a textarea is shown, with its white space, as a reader of the page sees it.
//  - A line end in collapsing white space is a space even between East Asian characters.
//  - A hidden root element makes an empty text, not that of the hidden elements.
//
// Fonts and paragraph styles follow the same style sheet, a CSS pixel being 0.75 points. Text is set in Times
// of 12 points, which is what browsers print in, and code in Courier of 9.75. The margins of headings are the
// spacing of their paragraphs; those of p are the empty lines; other vertical margins are left out.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

struct HtmlOptions {
    QByteArray charset; ///< as a MIME type or a transfer's header names it; empty or unknown for none
};

/// Whether the bytes begin with a doctype of HTML or with an html tag, behind white space, a byte order mark,
/// comments and an XML declaration; in UTF-8 (or whatever has ASCII in it) or UTF-16. Looks at a bounded
/// length.
bool looksLikeHtml(QByteArrayView bytes);

/// Every sequence of bytes is a page. Its encoding is that of its byte order mark, else the one the options
/// name, else the one a meta element in its first 1024 bytes names, else that of its XML declaration, else
/// the one that TextEncoding.h finds out. Encodings go by the labels of the Encoding Standard. UTF-8 that is
/// named falsely does not count.
Result<AttributedString, DocumentError> readHtml(QByteArrayView bytes, const HtmlOptions &options = {});
