// SPDX-License-Identifier: MIT
#include "documents/odt/StylesReader.h"

namespace {

std::optional<Styles::Family> familyNamed(QByteArrayView name)
{
    if (name == "paragraph")
        return Styles::Family::Paragraph;
    return name == "text" ? std::optional(Styles::Family::Text) : std::nullopt;
}

QByteArray nameOf(const XmlElement &element, OdfName attribute)
{
    return odfAttribute(element, attribute).value_or("").toByteArray();
}

} // namespace

void StylesReader::startElement(const XmlElement &element)
{
    if (hasTooManyStyles())
        return;
    switch (odfName(element)) {
    case "style:font-face"_odf:
        ++m_count;
        m_styles.m_fontFaces.insert(nameOf(element, "style:name"_odf),
            familyOf(odfAttribute(element, "svg:font-family"_odf).value_or("")));
        break;
    case "style:default-style"_odf:
        beginStyle(element, true);
        break;
    case "style:style"_odf:
        beginStyle(element, false);
        break;
    case "style:paragraph-properties"_odf:
        if (m_style)
            m_style->paragraph.read(element);
        break;
    case "style:text-properties"_odf:
        if (m_style)
            m_style->text.read(element, m_styles.m_fontFaces);
        break;
    case "style:tab-stops"_odf:
        if (m_style)
            m_style->paragraph.hasTabs = true;
        break;
    case "style:tab-stop"_odf:
        if (m_style)
            m_style->paragraph.readTab(element);
        break;
    case "text:list-style"_odf:
        ++m_count;
        m_listStyle = &m_styles.m_listStyles[nameOf(element, "style:name"_odf)];
        m_level = nullptr;
        break;
    case "text:list-level-style-number"_odf:
    case "text:list-level-style-bullet"_odf:
    case "text:list-level-style-image"_odf:
        readLevel(element);
        break;
    case "style:list-level-properties"_odf:
        readLevelProperties(element);
        break;
    case "style:list-level-label-alignment"_odf:
        readLevelAlignment(element);
        break;
    default:
        break;
    }
}

void StylesReader::endElement(XmlName name)
{
    switch (odfName(name)) {
    case "style:default-style"_odf:
    case "style:style"_odf:
        m_style = nullptr;
        break;
    case "text:list-style"_odf:
        m_listStyle = nullptr;
        m_level = nullptr;
        break;
    default:
        break;
    }
}

void StylesReader::beginStyle(const XmlElement &element, bool isDefault)
{
    const auto family = familyNamed(odfAttribute(element, "style:family"_odf).value_or(""));
    if (!family)
        return;
    ++m_count;
    const auto place = static_cast<size_t>(*family);
    m_style = isDefault ? &m_styles.m_defaults[place]
                        : &m_styles.m_styles[place][nameOf(element, "style:name"_odf)];
    *m_style = {};
    m_style->parent = nameOf(element, "style:parent-style-name"_odf);
    if (const auto list = odfAttribute(element, "style:list-style-name"_odf))
        m_style->listStyle = list->toByteArray();
}

void StylesReader::readLevel(const XmlElement &element)
{
    const int level = integerOf(odfAttribute(element, "text:level"_odf)).value_or(0);
    const bool isInRange = m_listStyle && level >= 1 && level <= maxListLevel;
    m_level = isInRange ? &(*m_listStyle)[static_cast<size_t>(level - 1)] : nullptr;
}

void StylesReader::readLevelProperties(const XmlElement &element)
{
    if (!m_level)
        return;
    *m_level = {};
    if (odfAttribute(element, "text:list-level-position-and-space-mode"_odf) == "label-alignment")
        return; // readLevelAlignment() follows
    const auto lengthOf = [&element](
                              OdfName name) { return pointsOf(odfAttribute(element, name)).value_or(0); };
    const double labelWidth = lengthOf("text:min-label-width"_odf);
    m_level->addsToParagraph = true;
    m_level->leadingIndent = lengthOf("text:space-before"_odf) + labelWidth;
    m_level->firstLineIndent = -labelWidth;
}

void StylesReader::readLevelAlignment(const XmlElement &element)
{
    if (!m_level || m_level->addsToParagraph)
        return;
    m_level->leadingIndent = pointsOf(odfAttribute(element, "fo:margin-left"_odf));
    m_level->firstLineIndent = pointsOf(odfAttribute(element, "fo:text-indent"_odf));
}
