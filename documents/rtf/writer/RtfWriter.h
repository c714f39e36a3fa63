// SPDX-License-Identifier: MIT
// RtfWriter turns a range of styled text into RTF 1.9.1 with the words that docs/rtf.md lists. Storing the
// files of attachments is left to the caller.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>

#include <functional>
#include <optional>

/// Returns the name of the file that holds an attachment next to the RTF: not empty, without white space at
/// its ends; absent if it is not stored. Called at most once for each distinct set of attributes, in text
/// order.
using AttachmentNames = std::function<std::optional<QString>(const Attachment &attachment)>;

/// Returns the bytes to which the RTF is appended. Called after the names of all attachments, unless writing
/// fails first.
using RtfTarget = std::function<QByteArray()>;

/// The RTF of a range, which is clamped to the text. RtfReader reads it back as an equal text, within the
/// limits of docs/rtf.md. Attachments on characters other than U+FFFC, and those that are not stored, are
/// left out. Takes time proportional to the length and to the number of distinct attributes. Fails as
/// TooLong or NotEnoughMemory. start, length: UTF-16 code units, 0 or more.
Result<QByteArray, DocumentError> writeRtf(const AttributedString &text, qsizetype start, qsizetype length,
    const AttachmentNames &storedNameOf = {}, const RtfTarget &target = {});
