// SPDX-License-Identifier: MIT
// RtfdPackage turns an RTFD on disk, a folder with an RTF and its attachments, into the flat form, one block
// of data. It parses none of the files; RtfdReader does.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

/// Whether the bytes begin with the magic of a flat RTFD.
bool looksLikeFlatRtfd(QByteArrayView bytes);

/// Whether a path leads to a folder with an entry TXT.rtf, of whatever type.
/// path: as the system holds it, bytes in any encoding.
bool isRtfdPackage(const QByteArray &path);

/// TXT.rtf and the regular files directly in the folder, and the names of folders. Symbolic links that lead
/// out of the folder count as missing, and so do files that would make the package larger than a document may
/// be. The order of the files is that of their names: a package that has not changed has the same bytes.
Result<QByteArray, DocumentError> flatRtfdOfPackage(const QByteArray &path);
