// SPDX-License-Identifier: MIT
// Any bytes as a Word document: reading ends and the text is sound. What begins as an archive is read as it
// is; all else is the contents of the parts of a sound package, parted by NUL bytes: body, styles, numbering,
// footnotes, a chunk. Those are mutated element by element, and byte by byte now and then.
#include "documents/docx/DocxReader.h"
#include "fuzz/docx/XmlMutator.h"
#include "tests/documents/docx/PackageWriter.h"

#include <QByteArrayList>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <random>

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

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t mostBytes);

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t mostBytes, unsigned seed)
{
    std::mt19937 random(seed);
    QByteArrayList parts =
        QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)).split('\0');
    if (parts.first().startsWith("PK") || random() % 4 == 0)
        return LLVMFuzzerMutate(data, size, mostBytes);
    // Mostly the body, of which there is most to know.
    const size_t place = random() % 2 ? 0 : random() % static_cast<size_t>(parts.size());
    QByteArray &part = parts[static_cast<qsizetype>(place)];
    for (unsigned changes = 1 + random() % 4; changes > 0; --changes)
        part = mutatedXml(part, random);
    QByteArray mutated = parts.join('\0');
    mutated.truncate(static_cast<qsizetype>(mostBytes));
    std::copy(mutated.begin(), mutated.end(), reinterpret_cast<char *>(data));
    return static_cast<size_t>(mutated.size());
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const bool isArchive = bytes.startsWith("PK");
    const QByteArray package = isArchive ? bytes : packageOf(bytes);
    const bool isKnown = looksLikeDocx(package);
    if (const Result<AttributedString, DocumentError> text = readDocx(package)) {
        require(isKnown);
        requireSound(text.value());
    }
    return 0;
}
