// SPDX-License-Identifier: MIT
// OdfNames are the names in OpenDocument texts (OASIS OpenDocument 1.3), as literals: "text:p"_odf is the
// element p in the namespace of text, whatever prefix a document has for it.
// Thread: any; constants.
#pragma once

#include "documents/package/XmlReader.h"

#include <array>
#include <string_view>

/// The namespaces by the prefixes that they usually have. Their numbers are their places here.
inline constexpr std::array odfPrefixes{std::string_view("office"), std::string_view("text"),
    std::string_view("style"), std::string_view("fo"), std::string_view("table"), std::string_view("draw"),
    std::string_view("svg"), std::string_view("config"), std::string_view("manifest"),
    std::string_view("loext"), std::string_view("dr3d"), std::string_view("math"), std::string_view("xlink")};

/// A name, hashed with its namespace.
using OdfName = quint64;

constexpr OdfName odfName(XmlName name)
{
    return (name.tag ^ static_cast<quint8>(name.space)) * 0x100000001B3U;
}

/// Fails to compile for a prefix that is not in odfPrefixes.
consteval OdfName operator""_odf(const char *text, size_t length)
{
    const std::string_view name(text, length);
    const size_t colon = name.find(':');
    size_t space = 0;
    while (odfPrefixes.at(space) != name.substr(0, colon))
        ++space;
    const std::string_view local = name.substr(colon + 1);
    return odfName({static_cast<XmlSpace>(firstFormatSpace + space), xmlTag(local.data(), local.size())});
}

/// The namespace of "text:p".
inline constexpr auto odfTextSpace = static_cast<XmlSpace>(firstFormatSpace + 1);
static_assert(odfPrefixes[1] == "text");

inline OdfName odfName(const XmlElement &element)
{
    return odfName(element.name());
}

/// UTF-8; absent if the element has no such attribute. Takes time proportional to the number of attributes.
std::optional<QByteArrayView> odfAttribute(const XmlElement &element, OdfName name);

const KnownNamespaces &odfNamespaces();
