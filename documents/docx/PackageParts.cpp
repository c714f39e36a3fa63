// SPDX-License-Identifier: MIT
#include "documents/docx/PackageParts.h"

#include "documents/docx/OfficeXml.h"
#include "documents/package/PartNames.h"

#include <QByteArrayList>

namespace {

QByteArray folderOf(const QByteArray &partName)
{
    return partName.first(partName.lastIndexOf('/') + 1);
}

QByteArray relationshipsPartOf(const QByteArray &source)
{
    const QByteArray folder = folderOf(source);
    return folder + "_rels/" + source.sliced(folder.size()) + ".rels";
}

QByteArray normalizeType(QByteArrayView type)
{
    const QByteArray lower = type.toByteArray().toLower();
    const qsizetype parameters = lower.indexOf(';');
    return (parameters < 0 ? lower : lower.first(parameters)).trimmed();
}

bool isWordDocument(const QByteArray &contentType)
{
    static const QByteArrayList types{
        "application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml",
        "application/vnd.openxmlformats-officedocument.wordprocessingml.template.main+xml",
        "application/vnd.ms-word.document.macroenabled.main+xml",
        "application/vnd.ms-word.template.macroenabledtemplate.main+xml",
    };
    return types.contains(contentType);
}

} // namespace

class RelationshipsReader final : public XmlHandler {
public:
    RelationshipsReader(Relationships &relationships, QByteArray source)
        : m_relationships(relationships)
        , m_source(std::move(source))
    {
    }

    void startElement(const XmlElement &element) override
    {
        if (element.name() != XmlName{OfficeSpace::PackageRelationships, "Relationship"_tag})
            return;
        const auto identifier = element.attribute(plainName("Id"_tag));
        const auto type = element.attribute(plainName("Type"_tag));
        const auto target = element.attribute(plainName("Target"_tag));
        const bool isExternal = element.attribute(plainName("TargetMode"_tag)) == "External";
        if (!identifier || !type || !target || isExternal)
            return;
        const QByteArray part = resolvePartName(m_source, *target);
        const QByteArray typeName = type->sliced(type->lastIndexOf('/') + 1).toByteArray();
        m_relationships.m_byId.insert(identifier->toByteArray(), part);
        if (!m_relationships.m_byType.contains(typeName))
            m_relationships.m_byType.insert(typeName, part);
    }
    void endElement(XmlName) override { }

private:
    Relationships &m_relationships;
    const QByteArray m_source;
};

Result<Relationships, DocumentError::Cause> Relationships::read(
    const ZipPackage &package, const QByteArray &source)
{
    Relationships relationships;
    const QByteArray part = relationshipsPartOf(source);
    if (!package.contains(part))
        return relationships;
    RelationshipsReader reader(relationships, source);
    if (const std::optional<DocumentError::Cause> failure = readOfficePart(package, part, reader))
        return *failure;
    return relationships;
}

std::optional<QByteArray> Relationships::partById(const QByteArray &identifier) const
{
    const auto found = m_byId.constFind(identifier);
    return found == m_byId.cend() ? std::nullopt : std::optional(*found);
}

std::optional<QByteArray> Relationships::partByType(const QByteArray &type) const
{
    const auto found = m_byType.constFind(type);
    return found == m_byType.cend() ? std::nullopt : std::optional(*found);
}

class ContentTypesReader final : public XmlHandler {
public:
    explicit ContentTypesReader(ContentTypes &types)
        : m_types(types)
    {
    }

    void startElement(const XmlElement &element) override
    {
        const auto type = element.attribute(plainName("ContentType"_tag));
        if (element.name().space != OfficeSpace::ContentTypes || !type)
            return;
        if (const auto extension = element.attribute(plainName("Extension"_tag)))
            m_types.m_byExtension.insert(extension->toByteArray().toLower(), normalizeType(*type));
        if (const auto part = element.attribute(plainName("PartName"_tag)))
            m_types.m_byPart.insert(resolvePartName({}, *part).toLower(), normalizeType(*type));
    }
    void endElement(XmlName) override { }

private:
    ContentTypes &m_types;
};

Result<ContentTypes, DocumentError::Cause> ContentTypes::read(const ZipPackage &package)
{
    const QByteArray part("[Content_Types].xml");
    if (!package.contains(part))
        return DocumentError::Cause::WrongKind;
    ContentTypes types;
    ContentTypesReader reader(types);
    if (const std::optional<DocumentError::Cause> failure = readOfficePart(package, part, reader))
        return *failure;
    return types;
}

QByteArray ContentTypes::typeOf(const QByteArray &partName) const
{
    const QByteArray name = partName.toLower();
    const auto found = m_byPart.constFind(name);
    if (found != m_byPart.cend())
        return *found;
    return m_byExtension.value(name.sliced(name.lastIndexOf('.') + 1));
}

Result<QByteArray, DocumentError::Cause> mainPartOf(const ZipPackage &package, const ContentTypes &types)
{
    const Result<Relationships, DocumentError::Cause> relationships = Relationships::read(package, {});
    if (!relationships)
        return relationships.error();
    const std::optional<QByteArray> part = relationships.value().partByType("officeDocument");
    if (!part || !isWordDocument(types.typeOf(*part)))
        return DocumentError::Cause::WrongKind;
    return *part;
}
