// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfReader.h"

#include "documents/Lengths.h"
#include "documents/rtf/RtfInterpreter.h"

#include <new>

namespace {

QByteArrayView skipLead(QByteArrayView bytes)
{
    constexpr QByteArrayView mark("\xEF\xBB\xBF");
    if (bytes.startsWith(mark))
        bytes = bytes.sliced(mark.size());
    while (!bytes.isEmpty() && QByteArrayView(" \t\r\n").contains(bytes.front()))
        bytes = bytes.sliced(1);
    return bytes;
}

} // namespace

bool looksLikeRtf(QByteArrayView bytes)
{
    return skipLead(bytes).startsWith("{\\rtf");
}

Result<AttributedString, DocumentError> readRtf(QByteArrayView bytes, const AttachmentSource &attachments)
{
    if (!looksLikeRtf(bytes))
        return DocumentError(DocumentError::Cause::WrongKind, DocumentKind::Rtf);
    if (bytes.size() > maxDocumentLength)
        return DocumentError(DocumentError::Cause::TooLong, DocumentKind::Rtf);
    try {
        return RtfInterpreter(attachments).readText(RtfTokenizer(skipLead(bytes)));
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Rtf);
    }
}
