// SPDX-License-Identifier: MIT
// Finds out the kind of any bytes. What follows "name " on a first line is the name of the document.
#include "documents/reading/KindDetection.h"
#include "fuzz/FuzzerInput.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const QByteArray name = takeFirstLine(bytes, "name ");
    const Result<DocumentKind, DocumentError> kind = kindOfDocument(name, bytes);
    require(kind || !causeText(kind.error()).isEmpty());
    return 0;
}
