// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfReader.h"

#include "documents/rtf/RtfInterpreter.h"

#include <new>

namespace {

/// Bytes, of which there are never fewer than code units.
constexpr qsizetype longestInput = INT32_MAX - 1;

QByteArrayView withoutLead(QByteArrayView bytes)
{
    constexpr QByteArrayView mark("\xEF\xBB\xBF");
    if (bytes.startsWith(mark))
        bytes = bytes.sliced(mark.size());
    while (!bytes.isEmpty() && QByteArrayView(" \t\r\n").contains(bytes.front()))
        bytes = bytes.sliced(1);
    return bytes;
}

} // namespace

QString causeText(RtfError error)
{
    switch (error) {
    case RtfError::NotRtf:
        return QStringLiteral("is not RTF");
    case RtfError::TooLong:
        return QStringLiteral("is larger than 2 GiB");
    case RtfError::NotEnoughMemory:
        break;
    }
    return QStringLiteral("not enough memory");
}

bool looksLikeRtf(QByteArrayView bytes)
{
    return withoutLead(bytes).startsWith("{\\rtf");
}

Result<AttributedString, RtfError> readRtf(QByteArrayView bytes, const AttachmentSource &attachments)
{
    if (!looksLikeRtf(bytes))
        return RtfError::NotRtf;
    if (bytes.size() > longestInput)
        return RtfError::TooLong;
    try {
        return RtfInterpreter(attachments).textOf(RtfTokenizer(withoutLead(bytes)));
    } catch (const std::bad_alloc &) {
        return RtfError::NotEnoughMemory;
    }
}
