// SPDX-License-Identifier: MIT
#include "documents/docx/AlternativeChunk.h"

#include "documents/PlainTextReader.h"
#include "documents/docx/WebArchive.h"
#include "documents/html/HtmlReader.h"
#include "documents/rtf/RtfReader.h"

namespace {

using Chunk = Result<AttributedString, DocxError>;

DocxError causeOf(HtmlError error)
{
    if (error == HtmlError::NotEnoughMemory)
        return DocxError::NotEnoughMemory;
    return error == HtmlError::TooLong ? DocxError::TooLarge : DocxError::TooIntricate;
}

DocxError causeOf(RtfError error)
{
    return error == RtfError::NotEnoughMemory ? DocxError::NotEnoughMemory : DocxError::TooLarge;
}

template <typename Error>
Chunk withCause(Result<AttributedString, Error> text)
{
    if (!text)
        return causeOf(text.error());
    return std::move(text).value();
}

Chunk plainChunk(QByteArrayView bytes)
{
    const Result<PlainText, TextError> text = readPlainText(bytes);
    if (!text)
        return text.error() == TextError::NotEnoughMemory ? DocxError::NotEnoughMemory : DocxError::TooLarge;
    return AttributedString(text.value().text);
}

Chunk nestedDocument(QByteArrayView bytes, ReadAllowance &allowance)
{
    if (allowance.nestedDocuments == 0)
        return DocxError::TooIntricate;
    --allowance.nestedDocuments;
    Chunk chunk = readPackageDocument(bytes, allowance);
    ++allowance.nestedDocuments;
    return chunk;
}

/// A page without any text is one; an archive without a page is unreadable.
Chunk webArchive(QByteArrayView bytes)
{
    const std::optional<WebArchivePage> page = pageOfWebArchive(bytes);
    return page ? withCause(readHtml(page->contents, {.charset = page->charset}))
                : DocxError::UnreadableChunk;
}

/// What a chunk begins with tells more than its type, which producers choose carelessly.
Chunk chunkOfType(const QByteArray &type, QByteArrayView bytes, ReadAllowance &allowance)
{
    if (bytes.startsWith("PK\x03\x04"))
        return nestedDocument(bytes, allowance);
    if (looksLikeRtf(bytes))
        return withCause(readRtf(bytes));
    if (type == "message/rfc822" || type == "multipart/related" || looksLikeWebArchive(bytes))
        return webArchive(bytes);
    if (type == "text/html" || type == "application/xhtml+xml" || looksLikeHtml(bytes))
        return withCause(readHtml(bytes));
    if (type == "text/plain")
        return plainChunk(bytes);
    return DocxError::UnreadableChunk;
}

} // namespace

Chunk readAlternativeChunk(
    const PackageDocument &document, const Relationships &relationships, const QByteArray &identifier)
{
    const std::optional<QByteArray> part = relationships.partById(identifier);
    if (!part)
        return AttributedString();
    if (--document.package.allowance().chunks < 0)
        return DocxError::TooIntricate;
    const Result<QByteArray, DocxError> bytes = document.package.contents(*part);
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
