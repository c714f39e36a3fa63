// SPDX-License-Identifier: MIT
#include "documents/docx/AlternativeChunk.h"

#include "documents/PlainTextReader.h"
#include "documents/docx/WebArchive.h"
#include "documents/html/HtmlReader.h"
#include "documents/rtf/RtfReader.h"

namespace {

using Chunk = Result<AttributedString, DocumentError::Cause>;

/// A chunk fails its document by causes that a document has.
Chunk chunkFrom(Result<AttributedString, DocumentError> text)
{
    if (text)
        return std::move(text).value();
    switch (text.error().cause) {
    case DocumentError::Cause::NotEnoughMemory:
        return DocumentError::Cause::NotEnoughMemory;
    case DocumentError::Cause::TooLong:
        return DocumentError::Cause::TooLarge;
    default:
        return DocumentError::Cause::TooComplex;
    }
}

Chunk plainChunk(QByteArrayView bytes)
{
    const Result<PlainText, DocumentError> text = readPlainText(bytes);
    if (!text)
        return chunkFrom(text.error());
    return AttributedString(text.value().text);
}

Chunk nestedDocument(QByteArrayView bytes, ReadAllowance &allowance)
{
    if (allowance.nestedDocuments == 0)
        return DocumentError::Cause::TooComplex;
    --allowance.nestedDocuments;
    Chunk chunk = readPackageDocument(bytes, allowance);
    ++allowance.nestedDocuments;
    return chunk;
}

/// A page without any text is one; an archive without a page is unreadable.
Chunk webArchive(QByteArrayView bytes)
{
    const std::optional<WebArchivePage> page = pageOfWebArchive(bytes);
    return page ? chunkFrom(readHtml(page->contents, {.charset = page->charset}))
                : DocumentError::Cause::UnsupportedPart;
}

/// What a chunk begins with tells more than its type, which producers choose carelessly.
Chunk chunkOfType(const QByteArray &type, QByteArrayView bytes, ReadAllowance &allowance)
{
    if (bytes.startsWith("PK\x03\x04"))
        return nestedDocument(bytes, allowance);
    if (looksLikeRtf(bytes))
        return chunkFrom(readRtf(bytes));
    if (type == "message/rfc822" || type == "multipart/related" || looksLikeWebArchive(bytes))
        return webArchive(bytes);
    if (type == "text/html" || type == "application/xhtml+xml" || looksLikeHtml(bytes))
        return chunkFrom(readHtml(bytes));
    if (type == "text/plain")
        return plainChunk(bytes);
    return DocumentError::Cause::UnsupportedPart;
}

} // namespace

Chunk readAlternativeChunk(
    const PackageDocument &document, const Relationships &relationships, const QByteArray &identifier)
{
    const std::optional<QByteArray> part = relationships.partById(identifier);
    if (!part)
        return AttributedString();
    if (--document.package.allowance().chunks < 0)
        return DocumentError::Cause::TooComplex;
    const Result<QByteArray, DocumentError::Cause> bytes = document.package.contents(*part);
    if (!bytes)
        return bytes.error();
    Chunk chunk = chunkOfType(document.types.typeOf(*part), bytes.value(), document.package.allowance());
    if (!chunk || chunk.value().isEmpty() || chunk.value().string().endsWith(u'\n'))
        return chunk;
    const AttributedString &text = chunk.value();
    AttributedStringBuilder ended;
    ended.append(text);
    ended.append(u"\n", text.attributesAt(text.length() - 1));
    return ended.build();
}
