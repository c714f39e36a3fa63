// SPDX-License-Identifier: MIT
// DocumentReader is the one entrance to the readers of all kinds: all code that has the bytes of a document
// reads them here, wherever they come from. KindDetection finds out their kind.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "documents/DocumentKind.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

struct ReadOptions {
    /// Of plain text and web pages: the encoding, as a MIME type or a transfer's header names it. Empty or
    /// unknown: detected from the bytes. The other kinds say it themselves.
    QByteArray charset = {};
    /// Each PDF file is read by a program of its own; without this option, reading one fails as
    /// PdfNotSupported.
    bool readsPdf = false;
};

/// The text of a document. A plain text has no attributes. A PDF file without text on any page fails as
/// NoText, so that a scan is not taken for an empty document, and one whose text is not characters fails as
/// UnmappedText. What each kind counts as text, the header of its reader says.
Result<AttributedString, DocumentError> readDocument(
    DocumentKind kind, QByteArrayView bytes, const ReadOptions &options = {});
