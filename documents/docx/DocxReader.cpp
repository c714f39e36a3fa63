// SPDX-License-Identifier: MIT
#include "documents/docx/DocxReader.h"

#include "documents/Notes.h"
#include "documents/docx/AlternativeChunk.h"
#include "documents/docx/CompoundFile.h"
#include "documents/docx/FlatDocument.h"
#include "documents/docx/PackageDocument.h"
#include "documents/docx/PackageParts.h"
#include "documents/docx/StoryReader.h"

#include <new>
#include <utility>

namespace {

/// Appends the notes of one part in the order of their references. References without a note are ignored.
std::optional<DocumentError::Cause> appendNotes(AttributedStringBuilder &text,
    const PackageDocument &document, const char *type, const NoteReferences &references, StoryNotes &notes)
{
    const std::optional<QByteArray> part = document.relationships.partByType(type);
    if (references.inOrder().empty() || !part || !document.package.contains(*part))
        return std::nullopt;
    const Result<Relationships, DocumentError::Cause> relationships =
        Relationships::read(document.package, *part);
    if (!relationships)
        return relationships.error();
    StoryReader reader(document.styles, notes, [&](const QByteArray &identifier) {
        return readAlternativeChunk(document, relationships.value(), identifier);
    });
    // Reading the notes adds their own references to the original.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const NoteReferences wanted = references;
    reader.setWantedNotes(&wanted);
    if (const std::optional<DocumentError::Cause> failure = readOfficePart(document.package, *part, reader))
        return failure;
    if (reader.error())
        return reader.error();
    for (const QByteArray &identifier : wanted.inOrder())
        text.append(reader.note(identifier));
    return std::nullopt;
}

Result<AttributedString, DocumentError::Cause> textOf(const PackageDocument &document)
{
    StoryNotes notes;
    StoryReader reader(document.styles, notes, [&document](const QByteArray &identifier) {
        return readAlternativeChunk(document, document.relationships, identifier);
    });
    if (const std::optional<DocumentError::Cause> failure =
            readOfficePart(document.package, document.mainPart, reader))
        return *failure;
    if (reader.error())
        return *reader.error();
    const AttributedString body = reader.takeBody();
    if (!notesAreText || (notes.footnotes.inOrder().empty() && notes.endnotes.inOrder().empty()))
        return body;
    AttributedStringBuilder text;
    text.append(body);
    std::optional<DocumentError::Cause> failure =
        appendNotes(text, document, "footnotes", notes.footnotes, notes);
    if (!failure)
        failure = appendNotes(text, document, "endnotes", notes.endnotes, notes);
    if (failure)
        return *failure;
    return text.build();
}

} // namespace

Result<AttributedString, DocumentError::Cause> readPackageDocument(
    QByteArrayView bytes, ReadAllowance &allowance, const ChunkReader &readChunk)
{
    if (const std::optional<DocumentError::Cause> cause = causeOfCompoundFile(bytes))
        return *cause;
    const Result<ZipPackage, DocumentError::Cause> package = ZipPackage::open(bytes, allowance);
    if (!package)
        return package.error();
    const Result<ContentTypes, DocumentError::Cause> types = ContentTypes::read(package.value());
    if (!types)
        return types.error();
    const Result<QByteArray, DocumentError::Cause> mainPart = mainPartOf(package.value(), types.value());
    if (!mainPart)
        return mainPart.error();
    const Result<Relationships, DocumentError::Cause> relationships =
        Relationships::read(package.value(), mainPart.value());
    if (!relationships)
        return relationships.error();
    const Result<DocumentStyles, DocumentError::Cause> styles =
        DocumentStyles::read(package.value(), relationships.value());
    if (!styles)
        return styles.error();
    return textOf(
        {package.value(), types.value(), mainPart.value(), relationships.value(), styles.value(), readChunk});
}

Result<AttributedString, DocumentError> readDocx(QByteArrayView bytes, const ChunkReader &readChunk)
{
    try {
        if (looksLikeFlatWordDocument(bytes))
            return DocumentError(DocumentError::Cause::FlatWordDocument, DocumentKind::WordDocument);
        ReadAllowance allowance;
        Result<AttributedString, DocumentError::Cause> text =
            readPackageDocument(bytes, allowance, readChunk);
        if (text)
            return std::move(text).value();
        return DocumentError(text.error(), DocumentKind::WordDocument);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::WordDocument);
    }
}
