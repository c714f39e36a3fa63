// SPDX-License-Identifier: MIT
// RtfdReader turns RTFD, an RTF with the files of its attachments, into styled text. It reads the flat form,
// one block of data; RtfdPackage makes one of a folder on disk. RtfReader reads the RTF itself.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "documents/rtfd/RtfdPackage.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArrayView>

/// The text of a flat RTFD with its attachments. An attachment that is a folder has no contents; one that is
/// missing, or whose name no file can have, is a U+FFFC without an attachment. Takes time and memory
/// proportional to the length.
Result<AttributedString, DocumentError> readFlatRtfd(QByteArrayView bytes);
