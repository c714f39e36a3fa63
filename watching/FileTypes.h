// SPDX-License-Identifier: MIT
// Which kinds of document a file is, and the file chooser for them. The four kinds depend on the file's name
// and the desktop's shared MIME database, never on its content; how a document is read is left to
// documents/loading.
// Thread: any; the file chooser main only.
#pragma once

#include "platform/views/Desktop.h"

#include <QUrl>

// Text is what conforms to text/plain in the MIME database: RTF, web pages, source code and SVG do, Word
// documents do not. A name that matches several types counts for each of them. A symbolic link has the type
// of its own name. All tests are false for URLs of other schemes, for missing and unreadable files, and for
// names of unknown type.
namespace QBYExtension {

/// Templates and documents with macros are Word documents too.
bool doesConformToDocXFileUTI(const QUrl &url);
bool doesConformToRTFFileUTI(const QUrl &url);
/// A folder whose name ends in ".rtfd".
bool doesConformToRTFDFileUTI(const QUrl &url);
bool doesConformToPlainTextFileUTI(const QUrl &url);
/// A document of a kind beside these four that can be watched: an OpenDocument text or an
/// electronic book (EPUB).
bool isDocumentOfAnotherKind(const QUrl &url);

/// Whether the start of the file is that of a document that is read, whatever its name: PDF files, texts
/// whose names have no type, such as "LICENSE", or that of something else, such as a film's. Reads the start
/// of the file.
bool isReadableDocument(const QUrl &url);

/// For one document.
OpenPanel openPanelForTextFiles();
/// Offers rich text with attachments, rich text, text, Word documents and their templates, in this order,
/// then the other kinds. A folder of rich text with attachments is chosen as one document, not opened.
OpenPanel openPanelForTextFilesAllowMultipleSelection(bool allowMultipleSelection);

} // namespace QBYExtension
