// SPDX-License-Identifier: MIT
// OfficeXml is what the parts of a Word document have in common: their namespaces, alternatives for other
// versions of Word, and the forms of their values. What elements mean is left to the handlers.
// Thread: any.
#pragma once

#include "documents/package/XmlReader.h"
#include "documents/package/XmlValues.h"

/// The transitional and the strict form of a namespace are one.
struct OfficeSpace {
    static constexpr XmlSpace Word{firstFormatSpace};
    static constexpr XmlSpace Math{firstFormatSpace + 1};
    static constexpr XmlSpace Drawing{firstFormatSpace + 2};
    static constexpr XmlSpace Relationships{firstFormatSpace + 3}; ///< r:id
    static constexpr XmlSpace PackageRelationships{firstFormatSpace + 4};
    static constexpr XmlSpace ContentTypes{firstFormatSpace + 5};
    static constexpr XmlSpace Compatibility{firstFormatSpace + 6}; ///< mc:AlternateContent
    /// Of pictures, shapes and extensions: supported, but without text.
    static constexpr XmlSpace Supported{firstFormatSpace + 7};
};

constexpr XmlName wordName(XmlTag tag)
{
    return {OfficeSpace::Word, tag};
}

inline bool isWord(const XmlElement &element)
{
    return element.name().space == OfficeSpace::Word;
}

/// The attribute w:val of an element in Word's namespace.
inline std::optional<QByteArrayView> valueOf(const XmlElement &element)
{
    return element.attribute("val"_tag);
}

/// Passes the elements of a part to the handler, in document order: of several alternatives the first one
/// that is supported, and no elements that are not supported and may be ignored.
[[nodiscard]] std::optional<DocumentError::Cause> readOfficePart(
    const ZipPackage &package, const QByteArray &partName, XmlHandler &handler);

/// Absent if the value is not a hexadecimal number of 32 bits.
std::optional<int> hexadecimalOf(std::optional<QByteArrayView> value);

/// An absent attribute means true.
bool booleanOf(std::optional<QByteArrayView> value);
