// SPDX-License-Identifier: MIT
// DocumentLoader turns documents on disk into styled text, whatever their kind. KindDetection finds out the
// kind, and SandboxedReader reads the bytes in another process.
// Thread: any. Blocks until the document is read.
#pragma once

#include "documents/reading/DocumentReader.h"

/// A file, or a folder with the RTF and the attachments of an RTFD. What is no text is refused, unless the
/// options say that it is to be read as text. path: bytes in any encoding.
Result<AttributedString, DocumentError> loadDocument(const QByteArray &path, const ReadOptions &options = {});

/// What an open descriptor, such as standard input, has from its position on. Waits for its end; the
/// descriptor stays open.
Result<AttributedString, DocumentError> loadDocument(int descriptor, const ReadOptions &options = {});

/// A document that is in memory already. path: where it was, as its name may tell the kind; empty for a
/// document without a name.
Result<AttributedString, DocumentError> readBytes(
    QByteArrayView bytes, const QByteArray &path = {}, const ReadOptions &options = {});

/// The kind as which readBytes() reads a document.
Result<DocumentKind, DocumentError> kindToReadAs(
    const QByteArray &path, QByteArrayView bytes, const ReadOptions &options);
