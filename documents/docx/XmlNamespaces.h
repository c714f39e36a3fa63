// SPDX-License-Identifier: MIT
// XmlNamespaces resolves the names in one XML document while it is read, and MarkupCompatibility decides
// which elements its reader sees. Parsing is left to XmlReader.
// Thread: one at a time.  Owner: XmlReader.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

#include <optional>
#include <vector>

/// The supported namespaces. The transitional and the strict form of a namespace are one.
enum class XmlSpace : quint8 {
    None, ///< an attribute without a prefix, an element without a namespace
    Word,
    Math,
    Drawing,
    Relationships, ///< r:id
    PackageRelationships,
    ContentTypes,
    Compatibility, ///< mc:AlternateContent
    Xml, ///< xml:space
    Supported, ///< of pictures, shapes and extensions: supported, but without text
    Unknown,
};

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

constexpr XmlName wordName(XmlTag tag)
{
    return {XmlSpace::Word, tag};
}

constexpr XmlName plainName(XmlTag tag)
{
    return {XmlSpace::None, tag};
}

/// Every look-up takes constant time.
class XmlNamespaces {
public:
    /// The number of a namespace in this document.
    using Index = int;

    XmlNamespaces();

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

    QHash<QByteArray, Name> m_names;
    QHash<QByteArray, int> m_prefixes;
    QHash<QByteArray, Index> m_uris;
    std::vector<XmlSpace> m_spaces; // by Index
    std::vector<std::vector<Binding>> m_bindings; // by prefix, innermost last
    std::vector<Declaration> m_declarations; // of all open elements, innermost last
};

/// Implements the rules of ECMA-376 for markup of other versions: selects one of several alternatives, and
/// skips elements that may be ignored and are not supported.
class MarkupCompatibility {
public:
    enum class Treatment {
        Keep,
        Unwrap, ///< replace the element by its content
        Skip, ///< with its content, for which enter() must not be called
    };

    explicit MarkupCompatibility(XmlNamespaces &namespaces)
        : m_namespaces(namespaces)
    {
    }

    /// How to treat an element. Its namespaces must have been entered.
    /// attributes: pairs of name and value, terminated by null.
    [[nodiscard]] Treatment enter(int depth, const char *qualifiedName, const char *const *attributes);
    /// Must be called for every element that was not skipped.
    void leave(int depth);

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
