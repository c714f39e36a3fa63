// SPDX-License-Identifier: MIT
// HtmlReader turns the bytes of a web page into styled text. Resources of the page (images, frames, scripts)
// are neither fetched nor run, and style sheets are those that the caller has.
// Thread: any.
//
// The text is that of the innerText attribute of the root element (HTML standard, "rendered text collection
// steps") under the default style sheet of the standard: lines end with U+000A, a paragraph (p) is
// surrounded by empty lines, white space collapses, no-break spaces and soft hyphens stay. Where the
// standard leaves a choice, or where this reader differs:
//  - Every cell of a table ends a paragraph, even an empty one, in place of the tabulators and line ends of
//    the standard; blocks at the edges of a cell add no line ends. A table at the end of a cell is followed
//    by an empty paragraph. This way, a table has the same text as in Word documents and RTF.
//  - The parts of a fraction and the cells of a matrix in MathML have a space (U+0020) around them, unless
//    there is white space already.
//  - Style attributes are applied as far as HtmlStyleAttribute.h supports them.
//  - Of the sheets in style elements, display and visibility are applied: by selectors of elements, classes
//    and ids, with descendants and children, with !important, and by @media as CssText.h supports it. Rules
//    with other selectors (attributes, pseudo-classes, siblings) are ignored. Sheets do not hide the html
//    and body elements: such pages are shown by scripts. Linked sheets are those of the options, imported
//    ones are ignored.
//  - text-transform, generated content (quotation marks of q, list markers, numbers), images and their
//    alternative texts add no text.
//  - Scripting counts as enabled: noscript is hidden. Details and dialogs that are not open, and popovers,
//    are hidden. The fallback content of object, audio, video, canvas, iframe, meter and progress is never
//    shown.
//  - The content of a textarea is shown with its white space.
//  - A line end in collapsible white space becomes a space even between East Asian characters.
//  - If the root element is hidden, the text is empty.
//
// Fonts and paragraph styles follow the same style sheet, with 0.75 points for a CSS pixel. Text is set in
// Times of 12 points, the default of browsers, and code in Courier of 9.75 points. The margins of headings
// become the spacing of their paragraphs, those of p become empty lines; other vertical margins are ignored.
#pragma once

#include "documents/DocumentError.h"
#include "documents/html/HtmlSignature.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

#include <functional>

struct HtmlOptions {
    QByteArray charset; ///< from a MIME type or an HTTP header; ignored if empty or unknown
    bool isXhtml = false; ///< the page is known to be XML; see XhtmlSource.h
    /// The style sheet to which a link element of the page refers, in UTF-8; empty where there is none.
    /// reference: as the page has it. Without this function, linked sheets do not apply.
    std::function<QByteArray(const QByteArray &reference)> linkedSheet = {};
};

/// Accepts any sequence of bytes. encodingOfPage() determines the encoding from a byte order mark, the
/// options, declarations in the page and its bytes.
Result<AttributedString, DocumentError> readHtml(QByteArrayView bytes, const HtmlOptions &options = {});
