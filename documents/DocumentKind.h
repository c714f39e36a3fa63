// SPDX-License-Identifier: MIT
// DocumentKind names the formats of documents, each of which has a reader of its own.
// Thread: any; a value.
#pragma once

#include <QtGlobal>

/// The numbers travel between processes.
enum class DocumentKind : quint32 {
    PlainText = 1,
    Rtf,
    Rtfd, ///< as one block of data; a package, which is a folder, has no bytes of its own
    Html,
    WordDocument,
    Pdf,
};
inline constexpr DocumentKind lastDocumentKind = DocumentKind::Pdf;
