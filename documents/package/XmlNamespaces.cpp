// SPDX-License-Identifier: MIT
#include "documents/package/XmlNamespaces.h"

#include <cstring>

namespace {

// Documents of word processors have about 500 distinct names and 40 namespaces.
constexpr qsizetype maxNames = 10'000;

constexpr int emptyPrefix = 0;
constexpr XmlNamespaces::Index noNamespace = 0;
constexpr XmlNamespaces::Index unboundPrefix = 1;

} // namespace

XmlNamespaces::XmlNamespaces(KnownNamespaces known)
    : m_known(std::move(known))
{
    m_known.insert("http://www.w3.org/XML/1998/namespace", XmlSpace::Xml);
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
    m_spaces.push_back(m_known.value(uri, XmlSpace::Unknown));
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
