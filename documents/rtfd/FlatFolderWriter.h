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

/// Fails as TooLong where the whole reaches 2 GiB. Throws std::bad_alloc.
Result<QByteArray, DocumentError> flatFolderOf(const std::vector<FlatEntry> &entries);
