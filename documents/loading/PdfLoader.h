// SPDX-License-Identifier: MIT
// PdfLoader is the loader for whoever counts a document once and on request: it reads PDF files too, each in
// a process of its own. A program that lives long and follows files uses DocumentLoader alone and has no code
// of PDF in it.
// Thread: any.
#pragma once

#include "documents/loading/DocumentLoader.h"

/// As loadDocument(); a PDF file without text on any page is DocumentError::Cause::NoText, so that a scan is
/// not taken for an empty document.
Result<AttributedString, DocumentError> loadDocumentOrPdf(const QByteArray &path);
Result<AttributedString, DocumentError> loadDocumentOrPdf(int descriptor);
