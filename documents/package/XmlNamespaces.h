// SPDX-License-Identifier: MIT
// XmlNamespaces resolves the names in one XML document while it is read, for a format that knows some
// namespaces. Parsing is left to XmlReader.
// Thread: one at a time.  Owner: the function that reads the document.
#pragma once

#include <QByteArray>
#include <QHash>

#include <vector>

/// A namespace. Each format numbers those that it knows from firstFormatSpace on.
enum class XmlSpace : quint8 {
    None, ///< an attribute without a prefix, an element without a namespace
    Unknown,
    Xml, ///< xml:space
};
inline constexpr quint8 firstFormatSpace = 3;

/// By URI. Several URIs may be one namespace.
using KnownNamespaces = QHash<QByteArray, XmlSpace>;

/// The FNV-1a hash of a local name, which is fast to compare. Names with equal hashes count as equal; a
/// document that is made to have such names does no harm.
using XmlTag = quint64;

constexpr XmlTag xmlTag(const char *name, size_t length)
{
    XmlTag hash = 0xCBF29CE484222325U;
    for (size_t i = 0; i < length; ++i)
        hash = (hash ^ static_cast<unsigned char>(name[i])) * 0x100000001B3U;
    return hash;
}

constexpr XmlTag operator""_tag(const char *name, size_t length)
{
    return xmlTag(name, length);
}

struct XmlName {
    XmlSpace space = XmlSpace::None;
    XmlTag tag = 0;

    bool operator==(const XmlName &) const = default;
};

constexpr XmlName plainName(XmlTag tag)
{
    return {XmlSpace::None, tag};
}

/// Every look-up takes constant time.
class XmlNamespaces {
public:
    /// The number of a namespace in this document.
    using Index = int;

    explicit XmlNamespaces(KnownNamespaces known);

    /// Adds the namespace declarations of an element; they apply until leave() is called with its depth.
    /// attributes: pairs of name and value, terminated by null.
    void enter(int depth, const char *const *attributes);
    void leave(int depth);

    /// Resolve a name in the current scope. An attribute without a prefix has no namespace.
    [[nodiscard]] XmlName elementName(const char *qualifiedName);
    [[nodiscard]] XmlName attributeName(const char *qualifiedName);

    /// The namespace of a prefix, or of the name of an element.
    [[nodiscard]] Index namespaceOfPrefix(const QByteArray &prefix);
    [[nodiscard]] Index namespaceOfElement(const char *qualifiedName);
    [[nodiscard]] XmlSpace space(Index index) const { return m_spaces[static_cast<size_t>(index)]; }

    /// Whether the document has more names than any real one.
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

    KnownNamespaces m_known;
    QHash<QByteArray, Name> m_names;
    QHash<QByteArray, int> m_prefixes;
    QHash<QByteArray, Index> m_uris;
    std::vector<XmlSpace> m_spaces; // by Index
    std::vector<std::vector<Binding>> m_bindings; // by prefix, innermost last
    std::vector<Declaration> m_declarations; // of all open elements, innermost last
};
