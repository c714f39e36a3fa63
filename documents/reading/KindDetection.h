// SPDX-License-Identifier: MIT
// KindDetection finds out of which kind a document is; it opens and reads no file.
// Thread: any.
#pragma once

#include "documents/DocumentKind.h"

#include <QByteArray>
#include <QByteArrayView>

/// The start of the bytes decides first, whatever the name: RTF, flat RTFD, PDF with at least one object (so
/// that a text about PDF stays a text), OpenDocument texts, as packages or flat files, compound files,
/// which are Word documents before 2007 or encrypted ones, Word documents in one XML file, and EPUB. Then the
/// MIME type of the name in the desktop's shared MIME database. Where the database does not know the name,
/// the bytes decide again: a doctype or html tag at the start, or a ZIP archive with the parts of a Word
/// document. Everything else is plain text. path: bytes in any encoding; empty for a document without a name.
DocumentKind kindOfDocument(const QByteArray &path, QByteArrayView bytes);
