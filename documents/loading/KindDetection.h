// SPDX-License-Identifier: MIT
// KindDetection finds out of which kind a document is; it opens and reads no file.
// Thread: any.
#pragma once

#include "documents/DocumentKind.h"

#include <QByteArray>
#include <QByteArrayView>

/// What the bytes say of themselves comes first: a document that begins as RTF, as flat RTFD or as PDF is
/// one, whatever its name; a text about PDF, which has no objects of it, is a text. A compound file is a Word
/// document, whose reader says what is wrong with it. Then the name: its MIME type in the desktop's shared
/// MIME database. A name that tells nothing leaves it to the bytes again: a leading doctype or html tag, or a
/// ZIP archive with the parts of a Word document. Everything else is plain text. path: bytes in any encoding;
/// empty for a document without a name.
DocumentKind kindOfDocument(const QByteArray &path, QByteArrayView bytes);
