// SPDX-License-Identifier: MIT
#include "documents/odt/OdfNames.h"

std::optional<QByteArrayView> odfAttribute(const XmlElement &element, OdfName name)
{
    std::optional<QByteArrayView> found;
    element.forEachAttribute([&](XmlName attribute, QByteArrayView value) {
        if (!found && odfName(attribute) == name)
            found = value;
    });
    return found;
}

const KnownNamespaces &odfNamespaces()
{
    // In the order of odfPrefixes.
    static constexpr std::array uris{"urn:oasis:names:tc:opendocument:xmlns:office:1.0",
        "urn:oasis:names:tc:opendocument:xmlns:text:1.0", "urn:oasis:names:tc:opendocument:xmlns:style:1.0",
        "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0",
        "urn:oasis:names:tc:opendocument:xmlns:table:1.0",
        "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0",
        "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0",
        "urn:oasis:names:tc:opendocument:xmlns:config:1.0",
        "urn:oasis:names:tc:opendocument:xmlns:manifest:1.0",
        "urn:org:documentfoundation:names:experimental:office:xmlns:loext:1.0",
        "urn:oasis:names:tc:opendocument:xmlns:dr3d:1.0", "http://www.w3.org/1998/Math/MathML",
        "http://www.w3.org/1999/xlink"};
    static_assert(uris.size() == odfPrefixes.size());
    static const KnownNamespaces known = [] {
        KnownNamespaces spaces;
        for (size_t i = 0; i < uris.size(); ++i)
            spaces.insert(uris[i], static_cast<XmlSpace>(firstFormatSpace + i));
        return spaces;
    }();
    return known;
}
