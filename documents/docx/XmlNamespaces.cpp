// SPDX-License-Identifier: MIT
#include "documents/docx/XmlNamespaces.h"

#include <QByteArrayList>

#include <algorithm>
#include <cstring>

namespace {

// Documents of Word have about 500 distinct names and 40 namespaces.
constexpr qsizetype maxNames = 10'000;

constexpr int emptyPrefix = 0;
constexpr XmlNamespaces::Index noNamespace = 0;
constexpr XmlNamespaces::Index unboundPrefix = 1;

struct KnownNamespace {
    const char *uri;
    XmlSpace space;
};

constexpr KnownNamespace knownNamespaces[]{
    {"http://schemas.openxmlformats.org/wordprocessingml/2006/main", XmlSpace::Word},
    {"http://purl.oclc.org/ooxml/wordprocessingml/main", XmlSpace::Word},
    {"http://schemas.openxmlformats.org/officeDocument/2006/math", XmlSpace::Math},
    {"http://purl.oclc.org/ooxml/officeDocument/math", XmlSpace::Math},
    {"http://schemas.openxmlformats.org/drawingml/2006/main", XmlSpace::Drawing},
    {"http://purl.oclc.org/ooxml/drawingml/main", XmlSpace::Drawing},
    {"http://schemas.openxmlformats.org/officeDocument/2006/relationships", XmlSpace::Relationships},
    {"http://purl.oclc.org/ooxml/officeDocument/relationships", XmlSpace::Relationships},
    {"http://schemas.openxmlformats.org/package/2006/relationships", XmlSpace::PackageRelationships},
    {"http://schemas.openxmlformats.org/package/2006/content-types", XmlSpace::ContentTypes},
    {"http://schemas.openxmlformats.org/markup-compatibility/2006", XmlSpace::Compatibility},
    {"http://www.w3.org/XML/1998/namespace", XmlSpace::Xml},
    {"http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing", XmlSpace::Supported},
    {"http://purl.oclc.org/ooxml/drawingml/wordprocessingDrawing", XmlSpace::Supported},
    {"http://schemas.openxmlformats.org/drawingml/2006/picture", XmlSpace::Supported},
    {"http://purl.oclc.org/ooxml/drawingml/picture", XmlSpace::Supported},
    {"http://schemas.microsoft.com/office/drawing/2010/main", XmlSpace::Supported},
    {"http://schemas.microsoft.com/office/word/2010/wordprocessingShape", XmlSpace::Supported},
    {"http://schemas.microsoft.com/office/word/2010/wordprocessingGroup", XmlSpace::Supported},
    {"http://schemas.microsoft.com/office/word/2010/wordprocessingCanvas", XmlSpace::Supported},
    {"http://schemas.microsoft.com/office/word/2010/wordprocessingDrawing", XmlSpace::Supported},
    {"http://schemas.microsoft.com/office/word/2010/wordml", XmlSpace::Supported},
    {"http://schemas.microsoft.com/office/word/2012/wordml", XmlSpace::Supported},
    {"http://schemas.microsoft.com/office/word/2006/wordml", XmlSpace::Supported},
    {"urn:schemas-microsoft-com:vml", XmlSpace::Supported},
    {"urn:schemas-microsoft-com:office:office", XmlSpace::Supported},
    {"urn:schemas-microsoft-com:office:word", XmlSpace::Supported},
};

XmlSpace spaceOf(const QByteArray &uri)
{
    static const QHash<QByteArray, XmlSpace> known = [] {
        QHash<QByteArray, XmlSpace> spaces;
        for (const KnownNamespace &entry : knownNamespaces)
            spaces.insert(entry.uri, entry.space);
        return spaces;
    }();
    return known.value(uri, XmlSpace::Unknown);
}

constexpr XmlTag ignoreTag = 0;

/// The items of a list separated by white space.
QByteArrayList itemsOf(const char *list)
{
    const QByteArray items = QByteArray(list).simplified();
    return items.isEmpty() ? QByteArrayList() : items.split(' ');
}

} // namespace

XmlNamespaces::XmlNamespaces()
{
    m_uris.insert("", noNamespace);
    m_spaces.push_back(XmlSpace::None);
    m_spaces.push_back(XmlSpace::Unknown); // unboundPrefix
    prefixOf("");
    m_bindings[emptyPrefix].push_back({0, noNamespace});
    m_bindings[static_cast<size_t>(prefixOf("xml"))].push_back(
        {0, indexOf("http://www.w3.org/XML/1998/namespace")});
}

int XmlNamespaces::prefixOf(const QByteArray &prefix)
{
    const auto found = m_prefixes.constFind(prefix);
    if (found != m_prefixes.cend())
        return *found;
    const auto number = static_cast<int>(m_bindings.size());
    m_prefixes.insert(prefix, number);
    m_bindings.emplace_back();
    return number;
}

XmlNamespaces::Index XmlNamespaces::indexOf(const QByteArray &uri)
{
    const auto found = m_uris.constFind(uri);
    if (found != m_uris.cend())
        return *found;
    const auto index = static_cast<Index>(m_spaces.size());
    m_uris.insert(uri, index);
    m_spaces.push_back(spaceOf(uri));
    return index;
}

const XmlNamespaces::Name &XmlNamespaces::nameOf(const char *qualifiedName)
{
    const auto length = static_cast<qsizetype>(std::strlen(qualifiedName));
    const auto found = m_names.constFind(QByteArray::fromRawData(qualifiedName, length));
    if (found != m_names.cend())
        return *found;
    const QByteArray name(qualifiedName, length);
    const qsizetype colon = name.indexOf(':');
    const QByteArray prefix = colon < 0 ? QByteArray("") : name.first(colon);
    const QByteArray local = name.sliced(colon + 1);
    const bool isDeclaration = name == "xmlns" || prefix == "xmlns";
    const int declared = isDeclaration ? prefixOf(colon < 0 ? QByteArray("") : local) : emptyPrefix;
    return *m_names.insert(name,
        {prefixOf(prefix), xmlTag(local.constData(), static_cast<size_t>(local.size())), isDeclaration,
            declared});
}

void XmlNamespaces::enter(int depth, const char *const *attributes)
{
    for (; *attributes; attributes += 2) {
        const Name &name = nameOf(attributes[0]);
        if (!name.isDeclaration)
            continue;
        m_bindings[static_cast<size_t>(name.declaredPrefix)].push_back({depth, indexOf(attributes[1])});
        m_declarations.push_back({depth, name.declaredPrefix});
    }
}

void XmlNamespaces::leave(int depth)
{
    for (; !m_declarations.empty() && m_declarations.back().depth == depth; m_declarations.pop_back())
        m_bindings[static_cast<size_t>(m_declarations.back().prefix)].pop_back();
}

XmlNamespaces::Index XmlNamespaces::boundTo(int prefix) const
{
    const std::vector<Binding> &bindings = m_bindings[static_cast<size_t>(prefix)];
    return bindings.empty() ? unboundPrefix : bindings.back().uri;
}

XmlName XmlNamespaces::elementName(const char *qualifiedName)
{
    const Name &name = nameOf(qualifiedName);
    return {space(boundTo(name.prefix)), name.tag};
}

XmlName XmlNamespaces::attributeName(const char *qualifiedName)
{
    const Name &name = nameOf(qualifiedName);
    return {name.prefix == emptyPrefix ? XmlSpace::None : space(boundTo(name.prefix)), name.tag};
}

XmlNamespaces::Index XmlNamespaces::namespaceOfPrefix(const QByteArray &prefix)
{
    return boundTo(prefixOf(prefix));
}

XmlNamespaces::Index XmlNamespaces::namespaceOfElement(const char *qualifiedName)
{
    return boundTo(nameOf(qualifiedName).prefix);
}

bool XmlNamespaces::hasTooManyNames() const
{
    return m_names.size() > maxNames || m_uris.size() > maxNames || m_prefixes.size() > maxNames;
}

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
        if (name.space != XmlSpace::Compatibility)
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

MarkupCompatibility::Treatment MarkupCompatibility::enter(
    int depth, const char *qualifiedName, const char *const *attributes)
{
    readPermissions(depth, attributes);
    const XmlName name = m_namespaces.elementName(qualifiedName);
    if (name.space == XmlSpace::Compatibility)
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

MarkupCompatibility::Treatment MarkupCompatibility::treatmentOfAlternative(
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
