// SPDX-License-Identifier: MIT
#include "documents/docx/OfficeXml.h"

#include <QByteArrayList>
#include <QHash>

#include <algorithm>
#include <vector>

namespace {

const KnownNamespaces &officeNamespaces()
{
    static const KnownNamespaces known{
        {"http://schemas.openxmlformats.org/wordprocessingml/2006/main", OfficeSpace::Word},
        {"http://purl.oclc.org/ooxml/wordprocessingml/main", OfficeSpace::Word},
        {"http://schemas.openxmlformats.org/officeDocument/2006/math", OfficeSpace::Math},
        {"http://purl.oclc.org/ooxml/officeDocument/math", OfficeSpace::Math},
        {"http://schemas.openxmlformats.org/drawingml/2006/main", OfficeSpace::Drawing},
        {"http://purl.oclc.org/ooxml/drawingml/main", OfficeSpace::Drawing},
        {"http://schemas.openxmlformats.org/officeDocument/2006/relationships", OfficeSpace::Relationships},
        {"http://purl.oclc.org/ooxml/officeDocument/relationships", OfficeSpace::Relationships},
        {"http://schemas.openxmlformats.org/package/2006/relationships", OfficeSpace::PackageRelationships},
        {"http://schemas.openxmlformats.org/package/2006/content-types", OfficeSpace::ContentTypes},
        {"http://schemas.openxmlformats.org/markup-compatibility/2006", OfficeSpace::Compatibility},
        {"http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing", OfficeSpace::Supported},
        {"http://purl.oclc.org/ooxml/drawingml/wordprocessingDrawing", OfficeSpace::Supported},
        {"http://schemas.openxmlformats.org/drawingml/2006/picture", OfficeSpace::Supported},
        {"http://purl.oclc.org/ooxml/drawingml/picture", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/drawing/2010/main", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2010/wordprocessingShape", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2010/wordprocessingGroup", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2010/wordprocessingCanvas", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2010/wordprocessingDrawing", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2010/wordml", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2012/wordml", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2006/wordml", OfficeSpace::Supported},
        {"urn:schemas-microsoft-com:vml", OfficeSpace::Supported},
        {"urn:schemas-microsoft-com:office:office", OfficeSpace::Supported},
        {"urn:schemas-microsoft-com:office:word", OfficeSpace::Supported},
    };
    return known;
}

constexpr XmlTag ignoreTag = 0;

/// The items of a list separated by white space.
QByteArrayList itemsOf(const char *list)
{
    const QByteArray items = QByteArray(list).simplified();
    return items.isEmpty() ? QByteArrayList() : items.split(' ');
}

/// Which elements the handler of a part sees, by the rules of ECMA-376 for markup of other versions: one of
/// several alternatives, and none that may be ignored and are not supported.
class MarkupCompatibility final : public XmlFilter {
public:
    explicit MarkupCompatibility(XmlNamespaces &namespaces)
        : m_namespaces(namespaces)
    {
    }

    [[nodiscard]] Treatment enter(
        int depth, const char *qualifiedName, const char *const *attributes) override;
    void leave(int depth) override;

private:
    struct Alternatives {
        int depth; // of mc:AlternateContent
        bool isChosen;
    };
    struct Permission {
        int depth;
        XmlNamespaces::Index uri;
        XmlTag tag; // of an element whose content is kept; 0 if elements may be ignored
    };

    void readPermissions(int depth, const char *const *attributes);
    void addPermission(int depth, XmlNamespaces::Index uri, XmlTag tag);
    [[nodiscard]] bool isPermitted(XmlNamespaces::Index uri, XmlTag tag) const;
    [[nodiscard]] Treatment treatmentOfAlternative(int depth, XmlTag tag, const char *const *attributes);
    [[nodiscard]] bool isSupported(const char *const *attributes);

    XmlNamespaces &m_namespaces;
    std::vector<Alternatives> m_alternatives; // innermost last
    std::vector<Permission> m_permissions; // innermost last
    QHash<QPair<XmlNamespaces::Index, XmlTag>, int> m_permitted; // how often
};

void MarkupCompatibility::addPermission(int depth, XmlNamespaces::Index uri, XmlTag tag)
{
    m_permissions.push_back({depth, uri, tag});
    ++m_permitted[{uri, tag}];
}

bool MarkupCompatibility::isPermitted(XmlNamespaces::Index uri, XmlTag tag) const
{
    return m_permitted.value({uri, tag}) > 0;
}

void MarkupCompatibility::readPermissions(int depth, const char *const *attributes)
{
    for (; *attributes; attributes += 2) {
        const XmlName name = m_namespaces.attributeName(attributes[0]);
        if (name.space != OfficeSpace::Compatibility)
            continue;
        if (name.tag == "Ignorable"_tag) {
            for (const QByteArray &prefix : itemsOf(attributes[1]))
                addPermission(depth, m_namespaces.namespaceOfPrefix(prefix), ignoreTag);
        } else if (name.tag == "ProcessContent"_tag) {
            for (const QByteArray &item : itemsOf(attributes[1])) {
                const qsizetype colon = item.indexOf(':');
                const QByteArray local = item.sliced(colon + 1);
                addPermission(depth,
                    m_namespaces.namespaceOfPrefix(item.first(std::max<qsizetype>(colon, 0))),
                    xmlTag(local.constData(), static_cast<size_t>(local.size())));
            }
        }
    }
}

XmlFilter::Treatment MarkupCompatibility::enter(
    int depth, const char *qualifiedName, const char *const *attributes)
{
    readPermissions(depth, attributes);
    const XmlName name = m_namespaces.elementName(qualifiedName);
    if (name.space == OfficeSpace::Compatibility)
        return treatmentOfAlternative(depth, name.tag, attributes);
    if (name.space != XmlSpace::Unknown)
        return Treatment::Keep;
    const XmlNamespaces::Index uri = m_namespaces.namespaceOfElement(qualifiedName);
    if (!isPermitted(uri, ignoreTag))
        return Treatment::Keep;
    if (isPermitted(uri, name.tag) || isPermitted(uri, "*"_tag))
        return Treatment::Unwrap;
    leave(depth);
    return Treatment::Skip;
}

XmlFilter::Treatment MarkupCompatibility::treatmentOfAlternative(
    int depth, XmlTag tag, const char *const *attributes)
{
    if (tag == "AlternateContent"_tag) {
        m_alternatives.push_back({depth, false});
        return Treatment::Unwrap;
    }
    const bool isAlternative = (tag == "Choice"_tag || tag == "Fallback"_tag) && !m_alternatives.empty()
        && m_alternatives.back().depth == depth - 1;
    if (isAlternative && !m_alternatives.back().isChosen
        && (tag == "Fallback"_tag || isSupported(attributes))) {
        m_alternatives.back().isChosen = true;
        return Treatment::Unwrap;
    }
    leave(depth);
    return Treatment::Skip;
}

bool MarkupCompatibility::isSupported(const char *const *attributes)
{
    for (; *attributes; attributes += 2) {
        if (m_namespaces.attributeName(attributes[0]) != plainName("Requires"_tag))
            continue;
        const QByteArrayList prefixes = itemsOf(attributes[1]);
        return !prefixes.isEmpty() && std::ranges::all_of(prefixes, [this](const QByteArray &prefix) {
            return m_namespaces.space(m_namespaces.namespaceOfPrefix(prefix)) != XmlSpace::Unknown;
        });
    }
    return false;
}

void MarkupCompatibility::leave(int depth)
{
    for (; !m_permissions.empty() && m_permissions.back().depth == depth; m_permissions.pop_back())
        --m_permitted[{m_permissions.back().uri, m_permissions.back().tag}];
    if (!m_alternatives.empty() && m_alternatives.back().depth == depth)
        m_alternatives.pop_back();
}

} // namespace

std::optional<DocumentError::Cause> readOfficePart(
    const ZipPackage &package, const QByteArray &partName, XmlHandler &handler)
{
    XmlNamespaces namespaces(officeNamespaces());
    MarkupCompatibility compatibility(namespaces);
    return readXmlPart(package, partName, namespaces, handler, &compatibility);
}

std::optional<int> hexadecimalOf(std::optional<QByteArrayView> value)
{
    return integerOf(value, 16);
}

bool booleanOf(std::optional<QByteArrayView> value)
{
    return !value || !(*value == "0" || *value == "false" || *value == "off");
}
