// SPDX-License-Identifier: MIT
// RtfWriter turns a range of styled text into RTF 1.9.1, in the words that docs/rtf.md lists. The files of
// attachments are no part of RTF: whoever stores them tells under which names.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>

#include <functional>
#include <optional>

/// The name under which the file of an attachment lies beside the RTF: not empty, without white space at its
/// ends; absent where it is stored nowhere. Asked once at most for each distinct set of attributes, in the
/// order of the text.
using AttachmentNames = std::function<std::optional<QString>(const Attachment &attachment)>;

/// The RTF of a range that is cut to what the text has of it; RtfReader makes an equal text of it, within the
/// bounds that docs/rtf.md names. Attachments on other characters than U+FFFC, and those that are stored
/// nowhere, are left out. Takes time proportional to the length and to the distinct attributes.
/// start, length: UTF-16 code units, 0 or more. Fails as TooLong or NotEnoughMemory.
Result<QByteArray, DocumentError> writeRtf(const AttributedString &text, qsizetype start, qsizetype length,
    const AttachmentNames &storedNameOf = {});
