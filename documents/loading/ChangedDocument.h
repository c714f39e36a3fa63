// SPDX-License-Identifier: MIT
// ChangedDocument loads a document again as DocumentLoader does, unless its bytes are still those of the last
// time.
// Thread: any. Blocks until the document is read.
#pragma once

#include "documents/loading/DocumentLoader.h"
#include "platform/system/ContentHash.h"

#include <QByteArray>

#include <optional>
#include <stop_token>

struct ChangedDocument {
    ContentHash
        hash; ///< of the path, which may tell the kind, and of all bytes, in a package those of all files
    std::optional<AttributedString> text; ///< absent if the hash is the known one
};

/// Reads all bytes; times and sizes of files are not trusted. known: the hash of the text that the caller
/// has; absent if it has none. path: bytes in any encoding. stop: as of ReadOptions.
Result<ChangedDocument, DocumentError> loadIfChanged(
    const QByteArray &path, const std::optional<ContentHash> &known, const std::stop_token &stop = {});
