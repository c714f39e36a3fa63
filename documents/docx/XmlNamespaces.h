// SPDX-License-Identifier: MIT
// XmlNamespaces resolves the prefixes of the names in one XML document while it is read.
// Thread: one at a time.  Owner: XmlReader.
#pragma once

#include "documents/docx/XmlNames.h"

#include <QByteArray>
#include <QHash>

#include <optional>
#include <vector>

/// Every look-up takes the same time, however many names and prefixes there are.
class XmlNamespaces {
public:
    /// A namespace of this document, by number.
    using Index = int;

    XmlNamespaces();

    /// Takes in the namespace declarations among the attributes of an element that starts at a depth; they
    /// hold until leave() of that depth. attributes: pairs of name and value, then null.
    void enter(int depth, const char *const *attributes);
    void leave(int depth);

    /// How a name is bound here. An attribute without a prefix has no namespace.
    [[nodiscard]] XmlName elementName(const char *qualifiedName);
    [[nodiscard]] XmlName attributeName(const char *qualifiedName);

    /// The namespace that a prefix, or an element's name, is bound to.
    [[nodiscard]] Index namespaceOfPrefix(const QByteArray &prefix);
    [[nodiscard]] Index namespaceOfElement(const char *qualifiedName);
    [[nodiscard]] XmlSpace space(Index index) const { return m_spaces[static_cast<size_t>(index)]; }

    /// Whether the document has more names than any sensible one.
    [[nodiscard]] bool hasTooManyNames() const;

private:
    struct Name {
        int prefix;
        XmlTag tag;
        bool isDeclaration; // "xmlns" or "xmlns:…"
        int declaredPrefix;
    };
    struct Binding {
        int depth;
        Index uri;
    };
    struct Declaration {
        int depth;
        int prefix;
    };

    const Name &nameOf(const char *qualifiedName);
    int prefixOf(const QByteArray &prefix);
    Index indexOf(const QByteArray &uri);
    [[nodiscard]] Index boundTo(int prefix) const;

    QHash<QByteArray, Name> m_names;
    QHash<QByteArray, int> m_prefixes;
    QHash<QByteArray, Index> m_uris;
    std::vector<XmlSpace> m_spaces; // by Index
    std::vector<std::vector<Binding>> m_bindings; // by prefix, innermost last
    std::vector<Declaration> m_declarations; // of all open elements, innermost last
};
