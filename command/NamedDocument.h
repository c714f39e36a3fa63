// SPDX-License-Identifier: MIT
// The documents that are named on the command line: files, pipes, and standard input as "-".
// Thread: any.
#pragma once

#include "documents/loading/DocumentLoader.h"
#include "platform/files/FileContents.h"

#include <QByteArray>

inline constexpr char standardInputName[] = "-";

enum class ReadAs { ItsKind, Text };

/// Whether it is the name of a pipe, such as a shell makes for "<(command)".
bool isNamedPipe(const QByteArray &name);

/// Reads standard input and pipes to their end. A pipe of a folder into which nobody writes is an error after
/// two seconds.
Result<QByteArray, FileError> readNamed(const QByteArray &name);
Result<AttributedString, DocumentError> loadNamedDocument(
    const QByteArray &name, ReadAs readAs = ReadAs::ItsKind);

/// Reports on standard error why a document was not read or counted.
void reportDocumentFailure(const QByteArray &name, const QString &cause);
