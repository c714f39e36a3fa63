// SPDX-License-Identifier: MIT
// Reads any bytes as an electronic book; reading must end with a sound text or an error. Bytes that begin as
// an archive are read as they are. All others are the contents of a sound book, separated by NUL bytes: more
// elements of the manifest, the elements of the spine (every page if there are none), the encrypted parts,
// and the pages, whose identifiers are page1, page2 and so on.
#include "documents/epub/EpubReader.h"
#include "fuzz/SoundText.h"
#include "tests/documents/epub/BookWriter.h"

#include <QByteArray>
#include <QByteArrayList>

#include <cstdint>

namespace {

QByteArray bookOf(const QByteArray &bytes)
{
    const QByteArrayList parts = bytes.split('\0');
    BookWriter book;
    book.method = ZipWriter::Method::Stored;
    book.items = parts.value(0);
    book.spine = parts.value(1);
    book.encryption = parts.value(2);
    for (qsizetype i = 3; i < parts.size(); ++i) {
        BookWriter::Page page{.name = QByteArray::number(i - 2) + ".xhtml", .body = parts[i]};
        if (!book.spine.isEmpty())
            page.inSpine.clear();
        book.pages.push_back(page);
    }
    return book.bytes();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const bool isArchive = bytes.startsWith("PK");
    const QByteArray book = isArchive ? bytes : bookOf(bytes);
    const Result<AttributedString, DocumentError> text = readEpub(book);
    if (text) {
        require(text.value().string().isValidUtf16());
        requireSound(text.value());
    } else {
        require(text.error().kind == DocumentKind::Epub
            && (isArchive || text.error().cause != DocumentError::Cause::WrongKind));
    }
    return 0;
}
