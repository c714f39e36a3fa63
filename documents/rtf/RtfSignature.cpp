// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfSignature.h"

QByteArrayView rtfWithoutLead(QByteArrayView bytes)
{
    constexpr QByteArrayView mark("\xEF\xBB\xBF");
    if (bytes.startsWith(mark))
        bytes = bytes.sliced(mark.size());
    while (!bytes.isEmpty() && QByteArrayView(" \t\r\n").contains(bytes.front()))
        bytes = bytes.sliced(1);
    return bytes;
}

bool looksLikeRtf(QByteArrayView bytes)
{
    return rtfWithoutLead(bytes).startsWith("{\\rtf");
}
