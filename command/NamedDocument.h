// SPDX-License-Identifier: MIT
// The documents that the words of a command name: files, and standard input as "-". Thread: any.
#pragma once

#include "documents/loading/DocumentLoader.h"

#include <QByteArray>

inline constexpr char standardInputName[] = "-";

/// Standard input is read to its end.
Result<AttributedString, DocumentError> loadNamedDocument(const QByteArray &name);

/// Tells on standard error why a document was not taken, behind its name.
void tellDocumentFailure(const QByteArray &name, const QString &cause);
