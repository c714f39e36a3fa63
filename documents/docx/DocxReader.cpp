// SPDX-License-Identifier: MIT
#include "documents/docx/DocxReader.h"

#include "documents/docx/AlternativeChunk.h"
#include "documents/docx/DocumentStyles.h"
#include "documents/docx/PackageDocument.h"
#include "documents/docx/PackageParts.h"
#include "documents/docx/StoryReader.h"
#include "platform/styled_text/Notes.h"

#include <new>

namespace {

/// The notes of one part, in the order of their references. A reference without a note has no text.
std::optional<DocxError> appendNotes(AttributedStringBuilder &text, const PackageDocument &document,
    const char *type, const NoteReferences &references, StoryNotes &notes)
{
    const std::optional<QByteArray> part = document.relationships.partByType(type);
    if (references.inOrder().empty() || !part || !document.package.contains(*part))
        return std::nullopt;
    const Result<Relationships, DocxError> relationships = Relationships::read(document.package, *part);
    if (!relationships)
        return relationships.error();
    StoryReader reader(document.styles, notes, [&](const QByteArray &identifier) {
        return readAlternativeChunk(document, relationships.value(), identifier);
    });
    const NoteReferences wanted = references; // notes in notes come too late
    reader.wantNotes(&wanted);
    if (const std::optional<DocxError> failure = readXmlPart(document.package, *part, reader))
        return failure;
    if (reader.error())
        return reader.error();
    for (const QByteArray &identifier : wanted.inOrder())
        text.append(reader.note(identifier));
    return std::nullopt;
}

Result<AttributedString, DocxError> textOf(const PackageDocument &document)
{
    StoryNotes notes;
    StoryReader reader(document.styles, notes, [&document](const QByteArray &identifier) {
        return readAlternativeChunk(document, document.relationships, identifier);
    });
    if (const std::optional<DocxError> failure = readXmlPart(document.package, document.mainPart, reader))
        return *failure;
    if (reader.error())
        return *reader.error();
    const AttributedString body = reader.takeBody();
    if (!notesAreText || (notes.footnotes.inOrder().empty() && notes.endnotes.inOrder().empty()))
        return body;
    AttributedStringBuilder text;
    text.append(body);
    std::optional<DocxError> failure = appendNotes(text, document, "footnotes", notes.footnotes, notes);
    if (!failure)
        failure = appendNotes(text, document, "endnotes", notes.endnotes, notes);
    if (failure)
        return *failure;
    return text.build();
}

} // namespace

QString causeText(DocxError error)
{
    switch (error) {
    case DocxError::NotWordDocument:
        return QStringLiteral("is not a Word document");
    case DocxError::OldWordDocument:
        return QStringLiteral("is in a format of before 2007; save it as .docx or RTF");
    case DocxError::Encrypted:
        return QStringLiteral("is encrypted; save it without a password");
    case DocxError::Damaged:
        return QStringLiteral("is a damaged Word document; open it in a word processor and save it anew");
    case DocxError::TooLarge:
        return QStringLiteral("has more in it than any Word document; divide it");
    case DocxError::TooIntricate:
        return QStringLiteral("is more intricate than any Word document; save it anew with a word processor");
    case DocxError::UnreadableChunk:
        return QStringLiteral(
            "has a part in a format that cannot be read; save it anew with a word processor");
    case DocxError::NotEnoughMemory:
        break;
    }
    return QStringLiteral("not enough memory");
}

bool looksLikeDocx(QByteArrayView bytes)
{
    try {
        ReadAllowance allowance;
        const Result<ZipPackage, DocxError> package = ZipPackage::open(bytes, allowance);
        if (!package)
            return package.error() == DocxError::Encrypted;
        const Result<ContentTypes, DocxError> types = ContentTypes::read(package.value());
        return types && mainPartOf(package.value(), types.value());
    } catch (const std::bad_alloc &) {
        return false;
    }
}

Result<AttributedString, DocxError> readPackageDocument(QByteArrayView bytes, ReadAllowance &allowance)
{
    const Result<ZipPackage, DocxError> package = ZipPackage::open(bytes, allowance);
    if (!package)
        return package.error();
    const Result<ContentTypes, DocxError> types = ContentTypes::read(package.value());
    if (!types)
        return types.error();
    const Result<QByteArray, DocxError> mainPart = mainPartOf(package.value(), types.value());
    if (!mainPart)
        return mainPart.error();
    const Result<Relationships, DocxError> relationships =
        Relationships::read(package.value(), mainPart.value());
    if (!relationships)
        return relationships.error();
    const Result<DocumentStyles, DocxError> styles =
        DocumentStyles::read(package.value(), relationships.value());
    if (!styles)
        return styles.error();
    return textOf({package.value(), types.value(), mainPart.value(), relationships.value(), styles.value()});
}

Result<AttributedString, DocxError> readDocx(QByteArrayView bytes)
{
    try {
        ReadAllowance allowance;
        return readPackageDocument(bytes, allowance);
    } catch (const std::bad_alloc &) {
        return DocxError::NotEnoughMemory;
    }
}
