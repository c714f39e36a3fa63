// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfReader.h"

#include "documents/Lengths.h"
#include "documents/rtf/RtfInterpreter.h"

#include <new>

Result<AttributedString, DocumentError> readRtf(QByteArrayView bytes, const AttachmentSource &attachments)
{
    if (!looksLikeRtf(bytes))
        return DocumentError(DocumentError::Cause::WrongKind, DocumentKind::Rtf);
    if (bytes.size() > maxDocumentLength)
        return DocumentError(DocumentError::Cause::TooLong, DocumentKind::Rtf);
    try {
        return RtfInterpreter(attachments).readText(RtfTokenizer(rtfWithoutLead(bytes)));
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Rtf);
    }
}
