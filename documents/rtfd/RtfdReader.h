// SPDX-License-Identifier: MIT
// RtfdReader turns RTFD, an RTF with the files of its attachments, into styled text: packages, which are
// folders on disk, and the flat form, which is one block of data. RtfReader reads the RTF itself.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

/// Whether the bytes begin with the magic of a flat RTFD.
bool looksLikeFlatRtfd(QByteArrayView bytes);

/// The text of a flat RTFD with its attachments. An attachment that is a folder has no contents; one that is
/// missing, or whose name no file can have, is a U+FFFC without an attachment. Takes time and memory
/// proportional to the length.
Result<AttributedString, DocumentError> readFlatRtfd(QByteArrayView bytes);

/// Whether a path leads to a folder with an entry TXT.rtf, of whatever type.
/// path: as the system holds it, bytes in any encoding.
bool isRtfdPackage(const QByteArray &path);

/// The text of a package, with its attachments as above. Opens TXT.rtf and the attachments that it names, if
/// they are regular files within the folder. Symbolic links that lead out of the folder count as missing, and
/// so do files that would make the package larger than a document may be.
Result<AttributedString, DocumentError> readRtfdPackage(const QByteArray &path);
