// SPDX-License-Identifier: MIT
// StylesReader reads the declarations of fonts, the styles and the automatic styles of an OpenDocument text.
// Resolving them is left to Styles.
// Thread: one at a time.  Owner: OdtDocument.
#pragma once

#include "documents/odt/Styles.h"

class StylesReader final : public XmlHandler {
public:
    explicit StylesReader(Styles &styles)
        : m_styles(styles)
    {
    }

    /// Elements within office:font-face-decls, office:styles and office:automatic-styles.
    void startElement(const XmlElement &element) override;
    void endElement(XmlName name) override;

    /// Whether the document has more styles than any real one.
    [[nodiscard]] bool hasTooManyStyles() const { return m_count > maxStyles; }

private:
    static constexpr int maxStyles = 200'000;

    void beginStyle(const XmlElement &element, bool isDefault);
    void readLevel(const XmlElement &element);
    void readLevelProperties(const XmlElement &element);
    void readLevelAlignment(const XmlElement &element);

    Styles &m_styles;
    int m_count = 0;
    // What is open; null outside. Pointers into hashes: nothing is inserted while they are set.
    OdtStyle *m_style = nullptr;
    ListStyle *m_listStyle = nullptr;
    ListLevel *m_level = nullptr;
};
