// SPDX-License-Identifier: MIT
#include "platform/styled_text/docx/AlternativeChunk.h"

#include "platform/styled_text/PlainTextReader.h"

namespace {

using Chunk = Result<AttributedString, DocxError>;

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

Chunk chunkOfType(const QByteArray &type, QByteArrayView bytes, ReadAllowance &allowance)
{
    if (bytes.startsWith("PK\x03\x04"))
        return nestedDocument(bytes, allowance);
    if (type.startsWith("text/plain"))
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
    const Result<QByteArray, DocxError> bytes = document.package.contents(*part);
    if (!bytes)
        return bytes.error();
    Chunk chunk = chunkOfType(document.types.typeOf(*part), bytes.value(), document.package.allowance());
    if (!chunk || chunk.value().isEmpty() || chunk.value().string().endsWith(u'\n'))
        return chunk;
    AttributedStringBuilder ended;
    ended.append(chunk.value());
    ended.append(u"\n", chunk.value().attributesAt(chunk.value().length() - 1));
    return ended.build();
}
