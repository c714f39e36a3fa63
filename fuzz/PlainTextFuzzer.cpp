// SPDX-License-Identifier: MIT
// Reads any bytes as plain text, which never fails. A first line that begins with "charset " is the charset
// of the MIME type.
#include "documents/PlainTextReader.h"
#include "fuzz/FuzzerInput.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const QByteArray charset = takeFirstLine(bytes, "charset ");
    const Result<PlainText, DocumentError> read = readPlainText(bytes, charset);
    require(read.hasValue());
    require(!read.value().encoding.isEmpty());
    require(read.value().text.isValidUtf16());
    require(read.value().text.size() <= bytes.size() * 2);
    require(readPlainText(bytes, charset).value().encoding == read.value().encoding);
    return 0;
}
