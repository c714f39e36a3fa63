// SPDX-License-Identifier: MIT
// RtfdWriter turns a range of styled text into a flat RTFD: its RTF, which RtfWriter makes, and the files of
// its attachments. Thread: any.
#pragma once

#include "documents/rtf/writer/RtfWriter.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QVariantMap>

/// The flat RTFD of a range that is cut to what the text has of it; readFlatRtfd() makes an equal text of it,
/// but for attachments on other characters than U+FFFC, which are left out. Copies of an attachment are
/// stored once. Fails as RtfWriter does, TooLong also for a whole that reaches 2 GiB. start, length: UTF-16
/// code units, 0 or more. documentAttributes: none is known so far; others are left unheeded.
Result<QByteArray, DocumentError> RTFDFromRange(const AttributedString &text, qsizetype start,
    qsizetype length, const QVariantMap &documentAttributes = {});
