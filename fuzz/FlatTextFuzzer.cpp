// SPDX-License-Identifier: MIT
// Reads any bytes as a flat text; a text that is written and read again must stay equal.
#include "documents/flat_text/FlatTextReader.h"
#include "documents/flat_text/FlatTextWriter.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::optional<AttributedString> text =
        readFlatText(QByteArrayView(data, static_cast<qsizetype>(size)));
    if (!text)
        return 0;
    const std::optional<AttributedString> again = readFlatText(flatTextOf(*text));
    if (!again || !(*again == *text))
        std::abort();
    return 0;
}
