// SPDX-License-Identifier: MIT
// The documents that are named on the command line: files, and standard input as "-".
// Thread: any.
#pragma once

#include "documents/loading/DocumentLoader.h"

#include <QByteArray>

inline constexpr char standardInputName[] = "-";

enum class ReadAs { ItsKind, Text };

/// Reads standard input to its end.
Result<AttributedString, DocumentError> loadNamedDocument(
    const QByteArray &name, ReadAs readAs = ReadAs::ItsKind);

/// Reports on standard error why a document was not read or counted.
void reportDocumentFailure(const QByteArray &name, const QString &cause);
