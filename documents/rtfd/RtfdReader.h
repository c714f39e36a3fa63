// SPDX-License-Identifier: MIT
// RtfdReader turns RTFD, an RTF with the files of its attachments, into styled text: the package, which is a
// folder on disk, and the flat form, which is one block of data. What the RTF says is RtfReader's to know.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

/// Whether the bytes begin as every flat RTFD does.
bool looksLikeFlatRtfd(QByteArrayView bytes);

/// The text of a flat RTFD with its attachments. One that is a folder has no contents; U+FFFC stands without
/// an attachment for one that is missing or whose name no file can have. Takes time and memory proportional
/// to the length.
Result<AttributedString, DocumentError> readFlatRtfd(QByteArrayView bytes);

/// Whether a path leads to a folder that has something by the name of TXT.rtf.
/// path: as the system holds it, bytes in any encoding.
bool isRtfdPackage(const QByteArray &path);

/// The text of a package, its attachments as above. Opens TXT.rtf and the attachments that it names, and only
/// where they are regular files within the folder: a symbolic link that leads out of it counts as missing,
/// and so does what would make the package larger than a document may be.
Result<AttributedString, DocumentError> readRtfdPackage(const QByteArray &path);
