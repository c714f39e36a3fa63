// SPDX-License-Identifier: MIT
// XmlReader reads a part of a package as a stream of elements and characters, and the values of attributes.
// What elements mean is left to the handlers.
// Thread: one at a time.
#pragma once

#include "documents/docx/XmlNamespaces.h"
#include "documents/docx/ZipPackage.h"

#include <QByteArrayView>

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
    [[nodiscard]] bool isWord() const { return m_name.space == XmlSpace::Word; }

    /// UTF-8; absent if the element has no such attribute.
    [[nodiscard]] std::optional<QByteArrayView> attribute(XmlName name) const;
    /// An attribute in Word's namespace.
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

/// Receives the elements of a part. Functions may throw std::bad_alloc.
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

/// Passes the elements of a part that MarkupCompatibility keeps to the handler, in document order. Fails as
/// Damaged on a document type declaration, which packages must not have. After a failure, the handler's
/// results are incomplete and must be discarded. Returns the failure; absent on success.
[[nodiscard]] std::optional<DocumentError::Cause> readXmlPart(
    const ZipPackage &package, const QByteArray &partName, XmlHandler &handler);

// Values of attributes (ECMA-376, simple types).

/// Points, from a number of 1/unitsPerPoint points, or from a number with a unit (mm, cm, in, pt, pc, pi).
/// Clamped to a metre in either direction; absent if the value is invalid.
std::optional<double> pointsOf(std::optional<QByteArrayView> value, double unitsPerPoint);

/// Absent if the value is not a number of 32 bits.
std::optional<int> integerOf(std::optional<QByteArrayView> value);
std::optional<int> hexadecimalOf(std::optional<QByteArrayView> value);

/// An absent attribute means true.
bool booleanOf(std::optional<QByteArrayView> value);

/// Assigns other to value if other is not absent.
template <typename Value>
void overlayValue(std::optional<Value> &value, const std::optional<Value> &other)
{
    if (other)
        value = other;
}
