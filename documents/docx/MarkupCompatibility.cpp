// SPDX-License-Identifier: MIT
#include "documents/docx/MarkupCompatibility.h"

#include "documents/docx/OfficeXml.h"

#include <QByteArrayList>

#include <algorithm>

namespace {

constexpr XmlTag ignoreTag = 0;

/// The items of a list separated by white space.
QByteArrayList itemsOf(const char *list)
{
    const QByteArray items = QByteArray(list).simplified();
    return items.isEmpty() ? QByteArrayList() : items.split(' ');
}

} // namespace

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
