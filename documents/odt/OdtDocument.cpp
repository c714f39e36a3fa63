// SPDX-License-Identifier: MIT
#include "documents/odt/OdtDocument.h"

void OdtDocument::beginPart(bool hasAutomaticStyles)
{
    m_hasAutomaticStyles = hasAutomaticStyles;
    m_section = Section::None;
    m_depth = 0;
}

OdtDocument::Section OdtDocument::sectionOf(const XmlElement &element) const
{
    constexpr int sectionDepth = 2;
    constexpr int textDepth = 3; // within office:body
    const OdfName name = odfName(element);
    if (m_depth == textDepth && name == "office:text"_odf)
        return Section::Text;
    if (m_depth != sectionDepth)
        return Section::None;
    switch (name) {
    case "office:settings"_odf:
        return Section::Settings;
    case "office:font-face-decls"_odf:
    case "office:styles"_odf:
        return Section::Styles;
    case "office:automatic-styles"_odf:
        return m_hasAutomaticStyles ? Section::Styles : Section::None;
    default:
        return Section::None;
    }
}

void OdtDocument::startElement(const XmlElement &element)
{
    ++m_depth;
    switch (m_section) {
    case Section::None:
        m_section = sectionOf(element);
        m_sectionDepth = m_depth;
        m_hasText = m_hasText || m_section == Section::Text;
        break;
    case Section::Settings:
        readSetting(element);
        break;
    case Section::Styles:
        m_stylesReader.startElement(element);
        break;
    case Section::Text:
        m_content.startElement(element);
        break;
    }
}

void OdtDocument::endElement(XmlName name)
{
    m_isTabSetting = false;
    if (m_section != Section::None && m_depth == m_sectionDepth)
        m_section = Section::None;
    else if (m_section == Section::Styles)
        m_stylesReader.endElement(name);
    else if (m_section == Section::Text)
        m_content.endElement(name);
    --m_depth;
}

void OdtDocument::characters(QByteArrayView text)
{
    if (m_section == Section::Text)
        m_content.characters(text);
    else if (m_isTabSetting)
        m_styles.tabsAreRelativeToIndent = text.trimmed() != "false";
}

void OdtDocument::readSetting(const XmlElement &element)
{
    m_isTabSetting = odfName(element) == "config:config-item"_odf
        && odfAttribute(element, "config:name"_odf) == "TabsRelativeToIndent";
}

std::optional<DocumentError::Cause> OdtDocument::error() const
{
    return m_stylesReader.hasTooManyStyles() ? DocumentError::Cause::TooComplex : m_content.error();
}
