// SPDX-License-Identifier: MIT
// RtfReader turns the bytes of an RTF document into styled text: RTF 1.9.1 as word processors write it, and
// all that docs/rtf.md describes. Where the files of attachments come from is its caller's business. Thread:
// any.
#pragma once

#include "platform/base/Result.h"
#include "platform/styled_text/AttributedString.h"

#include <QByteArrayView>

#include <functional>

/// The attachment of a stored name, null where there is none. Asked once for each name in a document.
using AttachmentSource = std::function<std::shared_ptr<const Attachment>(const QString &storedName)>;

enum class RtfError {
    NotRtf, ///< looksLikeRtf() is false
    TooLong, ///< positions in a text are 32 bits wide
    NotEnoughMemory,
};

/// The cause in English, on one line, to stand behind a file's name: "is larger than 2 GiB".
QString causeText(RtfError error);

/// Whether "{\rtf" is at the start, or behind nothing but a byte order mark of UTF-8, spaces, tabs and line
/// ends, which editors and mail programs have put there.
bool looksLikeRtf(QByteArrayView bytes);

/// Whatever looks like RTF is read as far as it makes sense: braces that are missing at the end are thought
/// there, and what follows the brace that closes the document is ignored. Takes time and memory proportional
/// to the length.
///
/// Text is what the document shows in its running text: the results of fields, the numbers and bullets of
/// lists that are spelled out, revisions as if accepted. Footnotes, endnotes and text boxes follow the body,
/// each in paragraphs of its own, in the order of their references. Cells are parted by tabs, and a row ends
/// with a newline in place of the last cell's tab. Headers, footers, comments, pictures, equations, hidden
/// text, and numbers and dates that a program would make up for the moment (page, footnote, today) are no
/// text.
///
/// An attachment is one U+FFFC; it stands without an attachment where `attachments` has none of its name.
Result<AttributedString, RtfError> readRtf(QByteArrayView bytes, const AttachmentSource &attachments = {});
