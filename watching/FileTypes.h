// SPDX-License-Identifier: MIT
// Which kinds of document a file is, by its name and the desktop's shared MIME database; its contents are
// never looked at. How a document is read, platform/styled_text/loading decides for itself. Thread: any.
#pragma once

#include <QUrl>

// Text is what conforms to text/plain in the MIME database: RTF, web pages, source code and SVG do, Word
// documents do not. A name that several types share counts for each of them. The document behind a symbolic
// link is named by the link. Every test is false for what is not a file: URL, for a missing file, one that
// this user may not read, and a name without a known type.
namespace QBYExtension {

bool doesConformToDocXFileUTI(const QUrl &url);
bool doesConformToRTFFileUTI(const QUrl &url);
/// A folder whose name ends in ".rtfd".
bool doesConformToRTFDFileUTI(const QUrl &url);
bool doesConformToPlainTextFileUTI(const QUrl &url);

} // namespace QBYExtension
