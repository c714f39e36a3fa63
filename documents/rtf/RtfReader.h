// SPDX-License-Identifier: MIT
// RtfReader turns the bytes of an RTF document into styled text: RTF 1.9.1 as word processors write it, and
// all that docs/rtf.md describes. Where the files of attachments come from is its caller's business. Thread:
// any.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArrayView>

#include <functional>

/// The attachment of a stored name, null where there is none. Asked once for each name in a document.
using AttachmentSource = std::function<std::shared_ptr<const Attachment>(const QString &storedName)>;

/// Whether "{\rtf" is at the start, or behind nothing but a byte order mark of UTF-8, spaces, tabs and line
/// ends, which editors and mail programs have put there.
bool looksLikeRtf(QByteArrayView bytes);

/// Whatever looks like RTF is read as far as it makes sense: braces that are missing at the end are thought
/// there, and what follows the brace that closes the document is ignored. Takes time and memory proportional
/// to the length.
///
/// Text is what the document shows in its running text: the results of fields, revisions as if accepted, the
/// runs of formulas, with a space (U+0020) around each part of a fraction, cell of a matrix and equation of
/// an array where there is no white space already. Footnotes, endnotes and text boxes follow the body, each
/// in paragraphs of its own, in the order of their references. Every cell of a table ends a paragraph, an
/// empty one too; rows and tables add nothing. Headers, footers, comments, pictures, hidden text, the numbers
/// and bullets of lists, and numbers and dates that a program would make up for the moment (page, footnote,
/// today) are no text.
///
/// An attachment is one U+FFFC; it stands without an attachment where `attachments` has none of its name.
Result<AttributedString, DocumentError> readRtf(
    QByteArrayView bytes, const AttachmentSource &attachments = {});
