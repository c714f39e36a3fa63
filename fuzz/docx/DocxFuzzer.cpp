// SPDX-License-Identifier: MIT
// Any bytes as a Word document: reading ends and the text is sound. What begins as an archive is read as it
// is; all else is the contents of the parts of a sound package, parted by NUL bytes: body, styles, numbering,
// footnotes, a chunk.
#include "platform/styled_text/docx/DocxReader.h"
#include "tests/platform/styled_text/docx/PackageWriter.h"

#include <QByteArrayList>

#include <cstdint>
#include <cstdlib>

namespace {

void require(bool isTrue)
{
    if (!isTrue)
        std::abort();
}

void requireSound(const AttributedString &text)
{
    require(text.isEmpty() || text.string().endsWith(u'\n'));
    qsizetype end = 0;
    for (qsizetype i = 0; i < text.runCount(); ++i) {
        const AttributedString::Run run = text.run(i);
        require(run.start == end && run.length > 0);
        require(i == 0 || run.attributesIndex != text.run(i - 1).attributesIndex);
        end += run.length;
    }
    require(end == text.length());
}

QByteArray packageOf(const QByteArray &bytes)
{
    const QByteArrayList parts = bytes.split('\0');
    WordPackage package{.body = parts.value(0),
        .styles = parts.value(1),
        .numbering = parts.value(2),
        .footnotes = parts.value(3)};
    package.others = {{"chunk", "aFChunk", "chunk.txt", "text/plain", parts.value(4)}};
    return package.bytes();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const bool isArchive = bytes.startsWith("PK");
    const QByteArray package = isArchive ? bytes : packageOf(bytes);
    const bool isKnown = looksLikeDocx(package);
    if (const Result<AttributedString, DocxError> text = readDocx(package)) {
        require(isKnown);
        requireSound(text.value());
    }
    return 0;
}
