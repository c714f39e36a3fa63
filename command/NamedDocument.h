// SPDX-License-Identifier: MIT
// The documents that are named on the command line: files, pipes, and standard input as "-".
// Thread: any.
#pragma once

#include "command/CommandWords.h"
#include "documents/loading/DocumentLoader.h"
#include "platform/files/FileContents.h"

#include <QByteArray>

inline constexpr char standardInputName[] = "-";

/// How a document is read, by the options that several commands share.
struct ReadAs {
    bool text = false; ///< --as-text: as plain text, whatever it is
    // What is plain text is read without its marks. With both, the name decides: .tex is LaTeX.
    bool markdown = false; ///< --markdown
    bool latex = false; ///< --latex

    static ReadAs fromWords(const CommandWords &words);
    /// Whether nothing was asked for.
    [[nodiscard]] bool isItsKind() const { return !text && !markdown && !latex; }
};

/// name: of the document.
ReadOptions readOptionsFor(const QByteArray &name, const ReadAs &readAs);

/// Whether it is the name of a pipe, such as a shell makes for "<(command)".
bool isNamedPipe(const QByteArray &name);

/// Reads standard input and pipes to their end. A pipe of a folder into which nobody writes is an error after
/// two seconds.
Result<QByteArray, FileError> readNamed(const QByteArray &name);
Result<AttributedString, DocumentError> loadNamedDocument(const QByteArray &name, const ReadAs &readAs = {});

/// Reports on standard error why a document was not read or counted.
void reportDocumentFailure(const QByteArray &name, const QString &cause);
