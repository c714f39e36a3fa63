// SPDX-License-Identifier: MIT
#include "documents/docx/MarkupCompatibility.h"

#include <QByteArray>
#include <QByteArrayList>

#include <algorithm>

namespace {

constexpr XmlTag ignoreTag = 0;

/// The items of a list that white space separates.
QByteArrayList itemsOf(const char *list)
{
    const QByteArray items = QByteArray(list).simplified();
    return items.isEmpty() ? QByteArrayList() : items.split(' ');
}

} // namespace

void MarkupCompatibility::permit(int depth, XmlNamespaces::Index uri, XmlTag tag)
{
    m_permissions.push_back({depth, uri, tag});
    ++m_permitted[{uri, tag}];
}

bool MarkupCompatibility::isPermitted(XmlNamespaces::Index uri, XmlTag tag) const
{
    return m_permitted.value({uri, tag}) > 0;
}

void MarkupCompatibility::takePermissions(int depth, const char *const *attributes)
{
    for (; *attributes; attributes += 2) {
        const XmlName name = m_namespaces.attributeName(attributes[0]);
        if (name.space != XmlSpace::Compatibility)
            continue;
        if (name.tag == "Ignorable"_tag) {
            for (const QByteArray &prefix : itemsOf(attributes[1]))
                permit(depth, m_namespaces.namespaceOfPrefix(prefix), ignoreTag);
        } else if (name.tag == "ProcessContent"_tag) {
            for (const QByteArray &item : itemsOf(attributes[1])) {
                const qsizetype colon = item.indexOf(':');
                const QByteArray local = item.sliced(colon + 1);
                permit(depth, m_namespaces.namespaceOfPrefix(item.first(std::max<qsizetype>(colon, 0))),
                    xmlTag(local.constData(), static_cast<size_t>(local.size())));
            }
        }
    }
}

MarkupCompatibility::Fate MarkupCompatibility::enter(
    int depth, const char *qualifiedName, const char *const *attributes)
{
    takePermissions(depth, attributes);
    const XmlName name = m_namespaces.elementName(qualifiedName);
    if (name.space == XmlSpace::Compatibility)
        return fateOfAlternative(depth, name.tag, attributes);
    if (name.space != XmlSpace::Unknown)
        return Fate::Seen;
    const XmlNamespaces::Index uri = m_namespaces.namespaceOfElement(qualifiedName);
    if (!isPermitted(uri, ignoreTag))
        return Fate::Seen;
    if (isPermitted(uri, name.tag) || isPermitted(uri, "*"_tag))
        return Fate::ReplacedByContent;
    leave(depth);
    return Fate::LeftOut;
}

MarkupCompatibility::Fate MarkupCompatibility::fateOfAlternative(
    int depth, XmlTag tag, const char *const *attributes)
{
    if (tag == "AlternateContent"_tag) {
        m_alternatives.push_back({depth, false});
        return Fate::ReplacedByContent;
    }
    const bool isAlternative = (tag == "Choice"_tag || tag == "Fallback"_tag) && !m_alternatives.empty()
        && m_alternatives.back().depth == depth - 1;
    if (isAlternative && !m_alternatives.back().isChosen
        && (tag == "Fallback"_tag || isUnderstood(attributes))) {
        m_alternatives.back().isChosen = true;
        return Fate::ReplacedByContent;
    }
    leave(depth);
    return Fate::LeftOut;
}

bool MarkupCompatibility::isUnderstood(const char *const *attributes)
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
