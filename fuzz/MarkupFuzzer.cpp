// SPDX-License-Identifier: MIT
// Reads any bytes as Markdown and as LaTeX; reading must end with a text that is not much longer than the
// bytes.
#include "documents/markup/LatexReader.h"
#include "documents/markup/MarkdownReader.h"
#include "fuzz/SoundText.h"

#include <cstdint>

namespace {

void requireBounded(const Result<AttributedString, DocumentError> &text, qsizetype length)
{
    // A character of one byte, such as ^ in \^a, can become two, and each block gets a line end.
    require(text && text.value().length() <= 3 * length + 3);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    requireBounded(readMarkdown(bytes), bytes.size());
    requireBounded(readLatex(bytes), bytes.size());
    return 0;
}
