// SPDX-License-Identifier: MIT
// DocumentReader is the one entrance to the readers of all kinds. Only processes in a sandbox call it: the
// program quillbay-document-reader, and the workers of the counting service. All others read documents with
// SandboxedReader. KindDetection finds out the kind.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "documents/DocumentKind.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

#include <stop_token>

struct ReadOptions {
    /// Of plain text and web pages: the encoding, as a MIME type or a transfer's header names it. Empty or
    /// unknown: detected from the bytes. The other kinds say it themselves.
    QByteArray charset = {};
    /// For DocumentLoader: without this option, reading a PDF file fails as PdfNotSupported.
    bool readsPdf = false;
    /// Where the kind of a document is found out: it is plain text, whatever its bytes say.
    bool asText = false;
    /// Where the kind of a document is found out to be plain text: the kind to read it as instead, Markdown
    /// or Latex. Without it, marks are text.
    DocumentKind plainTextAs = DocumentKind::PlainText;
    /// For SandboxedReader: ends the reading at once, which then fails as Cancelled.
    std::stop_token stop = {};
};

/// The text of a document. A plain text has no attributes. A PDF file fails as PdfNotSupported: only
/// quillbay-document-reader links Qt Pdf. What each kind counts as text, the header of its reader says.
Result<AttributedString, DocumentError> readDocument(
    DocumentKind kind, QByteArrayView bytes, const ReadOptions &options = {});
