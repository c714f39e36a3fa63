// SPDX-License-Identifier: MIT
// BinaryKind finds out what a document is whose bytes are no text: of a kind with a reader, or something that
// is refused by its name.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "documents/DocumentKind.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

/// Absent means that nothing is known of the bytes, not that they are text. Packages and compound files are
/// told apart by their contents, everything else by the magic numbers of the shared MIME database. A package
/// that is damaged or has none of the contents known here is what its name says.
/// path: bytes in any encoding; may be empty.
Result<DocumentKind, DocumentError> kindOfBinary(const QByteArray &path, QByteArrayView bytes);

/// The same for a type that a package or a flat XML document declares in itself.
Result<DocumentKind, DocumentError> kindOfDeclaredType(const QByteArray &type);

/// Whether the magic numbers of the shared MIME database know the bytes as something other than text.
bool isKnownAsBinary(QByteArrayView bytes);

/// The refusal of a format without a reader. format: with its article and the remedy.
DocumentError unsupportedFormat(const QString &format);
