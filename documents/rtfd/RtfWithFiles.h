// SPDX-License-Identifier: MIT
// RtfWithFiles reads the RTF of an RTFD whose files lie wherever its caller finds them.
// Thread: any.
#pragma once

#include "documents/rtfd/RtfdReader.h"

#include <functional>
#include <optional>

/// The contents of the file of a name, empty for a folder; absent where there is none, or none that may be
/// read. Asked once for each name, and only for names that an attachment in a folder can have.
/// name: UTF-8.
using FileSource = std::function<std::optional<QByteArray>(const QByteArray &name)>;

Result<AttributedString, DocumentError> readRtfWithFiles(QByteArrayView rtf, const FileSource &contentsOf);
