// SPDX-License-Identifier: MIT
// OdtDocument passes the sections of an OpenDocument text, which are in one file or in several parts of a
// package, to their readers.
// Thread: one at a time.  Owner: readOpenDocument().
#pragma once

#include "documents/odt/ContentReader.h"
#include "documents/odt/StylesReader.h"

class OdtDocument final : public XmlHandler {
public:
    explicit OdtDocument(ContentReader::ReadObject readObject)
        : m_content(m_styles, std::move(readObject))
    {
    }

    /// Call before another part of the package. The automatic styles beside the styles of a package are those
    /// of headers and footers, and are left out.
    void beginPart(bool hasAutomaticStyles);

    void startElement(const XmlElement &element) override;
    void endElement(XmlName name) override;
    void characters(QByteArrayView text) override;

    /// The failure that the readers found; absent if there is none.
    [[nodiscard]] std::optional<DocumentError::Cause> error() const;
    /// Whether a text was among the sections.
    [[nodiscard]] bool hasText() const { return m_hasText; }
    [[nodiscard]] AttributedString takeText() { return m_content.takeText(); }

private:
    /// Reads the one setting that matters for the text.
    void readSetting(const XmlElement &element);

    enum class Section { None, Settings, Styles, Text };
    [[nodiscard]] Section sectionOf(const XmlElement &element) const;

    Styles m_styles;
    StylesReader m_stylesReader{m_styles};
    ContentReader m_content;
    Section m_section = Section::None;
    int m_depth = 0;
    int m_sectionDepth = 0; // of the open section
    bool m_hasAutomaticStyles = true;
    bool m_hasText = false;
    bool m_isTabSetting = false; // whether the setting of tab stops is open
};
