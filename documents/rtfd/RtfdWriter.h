// SPDX-License-Identifier: MIT
// RtfdWriter turns a range of styled text into a flat RTFD: its RTF, which RtfWriter makes, and the files of
// its attachments.
// Thread: any.
#pragma once

#include "documents/rtf/writer/RtfWriter.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QVariantMap>

/// The flat RTFD of a range of the text; a range beyond the end is cut. readFlatRtfd() makes an equal text of
/// it, except that attachments on other characters than U+FFFC are left out. Copies of an attachment are
/// stored once. Fails as writeRtf() does, and as TooLong where the whole reaches 2 GiB.
/// start, length: UTF-16 code units, 0 or more. documentAttributes: all are ignored.
Result<QByteArray, DocumentError> RTFDFromRange(const AttributedString &text, qsizetype start,
    qsizetype length, const QVariantMap &documentAttributes = {});
