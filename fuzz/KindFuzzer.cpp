// SPDX-License-Identifier: MIT
// Finds out the kind of any bytes. What follows "name " on a first line is the name of the document.
#include "documents/reading/KindDetection.h"

#include <cstdint>

namespace {

void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArrayView bytes(data, static_cast<qsizetype>(size));
    QByteArray name;
    constexpr QByteArrayView word = "name ";
    if (bytes.startsWith(word)) {
        const qsizetype end = bytes.indexOf('\n');
        const QByteArrayView line = bytes.first(end < 0 ? bytes.size() : end);
        name = line.sliced(word.size()).toByteArray();
        bytes = bytes.sliced(end < 0 ? bytes.size() : end + 1);
    }
    const Result<DocumentKind, DocumentError> kind = kindOfDocument(name, bytes);
    require(kind || !causeText(kind.error()).isEmpty());
    return 0;
}
