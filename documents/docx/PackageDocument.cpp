// SPDX-License-Identifier: MIT
#include "documents/docx/PackageDocument.h"

#include "documents/Lengths.h"
#include "documents/Notes.h"
#include "documents/docx/AlternativeChunk.h"
#include "documents/docx/CompoundFile.h"
#include "documents/docx/StoryReader.h"

namespace {

constexpr double minTabInterval = 1; // points

class SettingsReader final : public XmlHandler {
public:
    explicit SettingsReader(DocumentStyles &styles)
        : m_styles(styles)
    {
    }

    void startElement(const XmlElement &element) override
    {
        if (element.name() != wordName("defaultTabStop"_tag))
            return;
        const std::optional<double> interval = pointsOf(valueOf(element), twipsPerPoint);
        if (interval && *interval >= minTabInterval)
            m_styles.defaultTabInterval = *interval;
    }
    void endElement(XmlName) override { }

private:
    DocumentStyles &m_styles;
};

/// Absent if the package has no such part.
std::optional<QByteArray> findPart(
    const ZipPackage &package, const Relationships &relationships, const char *type)
{
    const std::optional<QByteArray> part = relationships.partByType(type);
    return part && package.contains(*part) ? part : std::nullopt;
}

/// Moves a value to its place, or returns the failure.
template <typename Value>
std::optional<DocumentError::Cause> assign(Value &place, Result<Value, DocumentError::Cause> value)
{
    if (!value)
        return value.error();
    place = std::move(value).value();
    return std::nullopt;
}

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

Result<DocumentStyles, DocumentError::Cause> DocumentStyles::read(
    const ZipPackage &package, const Relationships &ofMainPart)
{
    DocumentStyles styles;
    std::optional<DocumentError::Cause> failure;
    if (const auto part = findPart(package, ofMainPart, "theme"))
        failure = assign(styles.theme, Theme::read(package, *part));
    const auto numbering = findPart(package, ofMainPart, "numbering");
    if (numbering && !failure)
        failure = assign(styles.numbering, Numbering::read(package, *numbering));
    const auto styleSheet = findPart(package, ofMainPart, "styles");
    if (styleSheet && !failure)
        failure =
            assign(styles.styleSheet, StyleSheet::read(package, *styleSheet, styles.theme, styles.numbering));
    const auto settings = findPart(package, ofMainPart, "settings");
    if (settings && !failure) {
        SettingsReader reader(styles);
        failure = readOfficePart(package, *settings, reader);
    }
    if (failure)
        return *failure;
    return styles;
}

Result<AttributedString, DocumentError::Cause> readPackageDocument(
    QByteArrayView bytes, ReadAllowance &allowance, const ChunkReader &readChunk)
{
    if (isCompoundFile(bytes))
        return hasStream(bytes, "EncryptedPackage") ? DocumentError::Cause::Encrypted
                                                    : DocumentError::Cause::OldFormat;
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
