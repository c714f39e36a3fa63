// SPDX-License-Identifier: MIT
// DocumentKind names the formats of documents, each of which has a reader of its own, and their MIME types.
// Thread: any; a value.
#pragma once

#include <QAnyStringView>
#include <QStringList>

#include <optional>

/// The numbers travel between processes.
enum class DocumentKind : quint32 {
    PlainText = 1,
    Rtf,
    Rtfd, ///< as one block of data; a package, which is a folder, has no bytes of its own
    Html,
    WordDocument,
    Pdf,
    OpenDocument, ///< a text; spreadsheets and presentations are not
    Epub,
    // Plain texts without their marks. No name and no bytes make a document one of these: only a user chooses
    // them.
    Markdown,
    Latex,
};
inline constexpr DocumentKind lastDocumentKind = DocumentKind::Latex;

/// The MIME types of a kind, the preferred one first; none for Markdown and Latex.
QStringList mimeTypes(DocumentKind kind);

/// Absent for a type that no kind has. type: in any case, without parameters.
std::optional<DocumentKind> kindOfMimeType(QAnyStringView type);
