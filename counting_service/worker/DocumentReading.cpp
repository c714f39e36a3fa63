// SPDX-License-Identifier: MIT
#include "counting_service/worker/DocumentReading.h"

#include "documents/docx/DocxReader.h"
#include "documents/rtfd/RtfdReader.h"

Result<AttributedString, DocumentError> readDocument(PayloadKind kind, QByteArrayView bytes)
{
    return kind == PayloadKind::WordDocument ? readDocx(bytes) : readFlatRtfd(bytes);
}
