// SPDX-License-Identifier: MIT
// XmlReader reads a part of a package as a stream of elements and characters, without ever holding it whole.
// Thread: one at a time.
#pragma once

#include "documents/docx/XmlNames.h"
#include "documents/docx/ZipPackage.h"

#include <QByteArrayView>

#include <optional>

class XmlNamespaces;

/// An element that starts; lives as long as the call that hands it over.
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
    [[nodiscard]] bool isWord() const { return m_name.space == XmlSpace::Word; }

    /// UTF-8; absent where the element has no such attribute.
    [[nodiscard]] std::optional<QByteArrayView> attribute(XmlName name) const;
    /// Of Word's namespace.
    [[nodiscard]] std::optional<QByteArrayView> attribute(XmlTag tag) const
    {
        return attribute(wordName(tag));
    }
    [[nodiscard]] std::optional<QByteArrayView> value() const { return attribute("val"_tag); }

private:
    XmlName m_name;
    const char *const *m_attributes;
    XmlNamespaces &m_namespaces;
};

/// What a reader of a part does with its elements. A call may throw std::bad_alloc.
class XmlHandler {
public:
    XmlHandler() = default;
    XmlHandler(const XmlHandler &) = delete;
    XmlHandler &operator=(const XmlHandler &) = delete;
    virtual ~XmlHandler() = default;

    virtual void startElement(const XmlElement &element) = 0;
    virtual void endElement(XmlName name) = 0;
    /// UTF-8, whole characters; one text may come in several pieces.
    virtual void characters(QByteArrayView text) { Q_UNUSED(text) }
};

/// Hands every element of a part to the handler that is left after MarkupCompatibility, in the order of the
/// document. A document type declaration is Damaged, since a package must have none. What the handler got
/// before a failure is worthless.
[[nodiscard]] std::optional<DocumentError::Cause> readXmlPart(
    const ZipPackage &package, const QByteArray &partName, XmlHandler &handler);
