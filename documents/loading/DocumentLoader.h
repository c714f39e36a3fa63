// SPDX-License-Identifier: MIT
// DocumentLoader turns a document into styled text, whatever its kind: plain text, RTF, RTFD as a folder or
// as one file, web pages, Word documents. Which kind it is, DocumentKind tells; each has a reader of its own.
// PDF files are PdfLoader's: here they are DocumentError::Cause::PdfNotSupported, whatever their names.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QVariantMap>

/// Wishes about the loading; so far there is none to be had, and unknown ones are left unheeded.
using DocumentOptions = QVariantMap;

/// A document on disk: a file, or a folder with the RTF and the attachments of an RTFD. path: bytes in any
/// encoding.
Result<AttributedString, DocumentError> loadDocument(
    const QByteArray &path, const DocumentOptions &options = {});

/// A document that an open descriptor, such as standard input, has from its position on; waits for its end.
Result<AttributedString, DocumentError> loadDocument(int descriptor, const DocumentOptions &options = {});

/// A document that has been read already. A plain text has no attributes. path: where it was; empty for a
/// document without a name.
Result<AttributedString, DocumentError> documentFromBytes(
    QByteArrayView bytes, const DocumentOptions &options = {});
Result<AttributedString, DocumentError> documentFromBytes(const QByteArray &path, QByteArrayView bytes);

/// A document of a file that has been read already. path: whose name may tell the kind.
Result<AttributedString, DocumentError> documentFromFile(const QByteArray &path, QByteArrayView bytes);
