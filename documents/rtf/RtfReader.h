// SPDX-License-Identifier: MIT
// RtfReader turns the bytes of an RTF document into styled text: RTF 1.9.1 as word processors write it, and
// everything that docs/rtf.md describes. Loading the files of attachments is left to the caller.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "documents/rtf/RtfSignature.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArrayView>

#include <functional>

/// Returns the attachment of a stored name; null if there is none. Called once for each name in a document.
using AttachmentSource = std::function<std::shared_ptr<const Attachment>(const QString &storedName)>;

/// Everything that looks like RTF is read as far as possible: missing braces at the end are assumed, and data
/// after the brace that closes the document is ignored. Takes time and memory proportional to the length.
///
/// The text is that of the document as it is shown, with all revisions accepted and fields replaced by their
/// results. Formulas are the text of their runs, with a space (U+0020) around each part of a fraction, cell
/// of a matrix and equation of an array that has no white space there. Footnotes, endnotes and text boxes
/// follow the body in the order of their references, each in paragraphs of its own. Every cell of a table
/// ends a paragraph, even an empty one; rows and tables add nothing. Not text are headers, footers, comments,
/// pictures, hidden text, list numbers and bullets, and generated numbers and dates (page, footnote, today).
///
/// An attachment is one U+FFFC, with no attachment attribute if `attachments` returns null.
Result<AttributedString, DocumentError> readRtf(
    QByteArrayView bytes, const AttachmentSource &attachments = {});
