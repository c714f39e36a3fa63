// SPDX-License-Identifier: MIT
// DocumentLoader turns a document into styled text, whatever its kind; so far each one is a plain text.
// Thread: any.
#pragma once

#include "platform/base/Result.h"
#include "platform/files/FileError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/styled_text/PlainTextReader.h"

#include <QVariantMap>

#include <variant>

/// Wishes about the loading; so far there is none to be had, and unknown ones are left unheeded.
using DocumentOptions = QVariantMap;

using LoadError = std::variant<FileError, TextError>;

/// The cause in English, on one line, to stand behind the document's name.
QString causeText(const LoadError &error);

/// A document on disk. path: bytes in any encoding.
Result<AttributedString, LoadError> loadDocument(const QByteArray &path, const DocumentOptions &options = {});

/// A document that an open descriptor, such as standard input, has from its position on; waits for its end.
Result<AttributedString, LoadError> loadDocument(int descriptor, const DocumentOptions &options = {});

/// A document that has been read already. A plain text has no attributes.
Result<AttributedString, LoadError> documentFromBytes(
    QByteArrayView bytes, const DocumentOptions &options = {});
