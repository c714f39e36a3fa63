// SPDX-License-Identifier: MIT
// XmlReader reads XML, such as a part of a package, as a stream of elements and characters. What elements
// mean is left to the handlers.
// Thread: one at a time.
#pragma once

#include "documents/DocumentError.h"
#include "documents/package/XmlNamespaces.h"
#include "documents/package/ZipPackage.h"

#include <QByteArrayView>

#include <memory>
#include <optional>

/// The start of an element. Valid only during the call that passes it.
class XmlElement {
public:
    XmlElement(XmlName name, const char *const *attributes, XmlNamespaces &namespaces)
        : m_name(name)
        , m_attributes(attributes)
        , m_namespaces(namespaces)
    {
    }

    [[nodiscard]] XmlName name() const { return m_name; }
    [[nodiscard]] XmlTag tag() const { return m_name.tag; }

    /// UTF-8; absent if the element has no such attribute.
    [[nodiscard]] std::optional<QByteArrayView> attribute(XmlName name) const;
    /// An attribute in the namespace of the element.
    [[nodiscard]] std::optional<QByteArrayView> attribute(XmlTag tag) const
    {
        return attribute({m_name.space, tag});
    }

    /// Calls a function with the name and the value of every attribute.
    template <typename Visit>
    void forEachAttribute(Visit &&visit) const
    {
        for (const char *const *pair = m_attributes; *pair; pair += 2)
            visit(m_namespaces.attributeName(pair[0]), QByteArrayView(pair[1]));
    }

private:
    XmlName m_name;
    const char *const *m_attributes;
    XmlNamespaces &m_namespaces;
};

/// Receives the elements of a document. Functions may throw std::bad_alloc.
class XmlHandler {
public:
    XmlHandler() = default;
    XmlHandler(const XmlHandler &) = delete;
    XmlHandler &operator=(const XmlHandler &) = delete;
    virtual ~XmlHandler() = default;

    virtual void startElement(const XmlElement &element) = 0;
    virtual void endElement(XmlName name) = 0;
    /// text: whole characters in UTF-8. One text may arrive in several pieces.
    virtual void characters(QByteArrayView text) { Q_UNUSED(text) }
};

/// Decides which elements a handler receives.
class XmlFilter {
public:
    enum class Treatment {
        Keep,
        Unwrap, ///< replace the element by its content
        Skip, ///< with its content, for which enter() is not called
    };

    XmlFilter() = default;
    XmlFilter(const XmlFilter &) = delete;
    XmlFilter &operator=(const XmlFilter &) = delete;
    virtual ~XmlFilter() = default;

    /// How to treat an element, whose namespaces have been entered.
    /// attributes: pairs of name and value, terminated by null.
    [[nodiscard]] virtual Treatment enter(
        int depth, const char *qualifiedName, const char *const *attributes) = 0;
    /// Is called for every element that was not skipped.
    virtual void leave(int depth) = 0;
};

/// Passes the elements of a document that arrives in pieces to a handler, in document order. Fails as Damaged
/// on declarations of entities or attributes, which no package needs, and as TooComplex on more depth, names
/// or longer tags than any real document has. The only state of the parser that a document controls are open
/// tags and names. After a failure, the handler's results are incomplete and must be discarded.
class XmlParser {
public:
    /// All must outlive the parser. filter: may be null.
    XmlParser(XmlNamespaces &namespaces, XmlHandler &handler, XmlFilter *filter = nullptr);
    ~XmlParser();
    XmlParser(const XmlParser &) = delete;
    XmlParser &operator=(const XmlParser &) = delete;

    /// Returns false on a failure, which finish() returns.
    [[nodiscard]] bool take(QByteArrayView piece);
    /// Call once, after the last piece. Returns the failure; absent on success.
    [[nodiscard]] std::optional<DocumentError::Cause> finish();

private:
    class Driver;
    std::unique_ptr<Driver> m_driver;
};

/// Passes a part of a package through an XmlParser.
[[nodiscard]] std::optional<DocumentError::Cause> readXmlPart(const ZipPackage &package,
    const QByteArray &partName, XmlNamespaces &namespaces, XmlHandler &handler, XmlFilter *filter = nullptr);
