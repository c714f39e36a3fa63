// SPDX-License-Identifier: MIT
// Reads any bytes as a flat RTFD; a text that is written and read again must stay equal.
#include "documents/rtfd/RtfdReader.h"
#include "documents/rtfd/RtfdWriter.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const Result<AttributedString, DocumentError> text = readFlatRtfd(bytes);
    if (!text)
        return 0;
    const Result<QByteArray, DocumentError> written = RTFDFromRange(text.value(), 0, text.value().length());
    const Result<AttributedString, DocumentError> again = readFlatRtfd(written.value());
    if (!(again.value() == text.value()))
        std::abort();
    return 0;
}
