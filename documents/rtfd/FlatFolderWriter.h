// SPDX-License-Identifier: MIT
// FlatFolderWriter writes the flat form of an RTFD that FlatFolder describes.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "platform/system/Result.h"

#include <QByteArray>

#include <vector>

struct FlatEntry {
    QByteArray name;
    QByteArray contents;
    bool isFolder = false; ///< without contents
};

void appendFlatWord(QByteArray &bytes, quint32 word);

/// Fails as TooLong where the whole reaches 2 GiB. Throws std::bad_alloc. entries: at least one.
Result<QByteArray, DocumentError> flatFolderOf(const std::vector<FlatEntry> &entries);

// The same in two steps, for contents that are made in their place: the caller appends those of the first
// entry to the start of the folder, and finishes it.

/// Ignores the contents of the first entry, which must be a file.
QByteArray startOfFlatFolder(const std::vector<FlatEntry> &entries);
/// folder: the start for the same entries, and the contents of the first one.
Result<QByteArray, DocumentError> finishFlatFolder(QByteArray folder, const std::vector<FlatEntry> &entries);
