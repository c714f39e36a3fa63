// SPDX-License-Identifier: MIT
#include "documents/docx/StyleSheet.h"

#include <algorithm>
#include <array>

namespace {

constexpr size_t maxInheritanceDepth = 50;

constexpr std::array<const char *, tablePartCount> tablePartNames{"band1Vert", "band2Vert", "band1Horz",
    "band2Horz", "firstRow", "lastRow", "firstCol", "lastCol", "neCell", "nwCell", "seCell", "swCell"};

std::optional<TablePart> tablePartOf(QByteArrayView name)
{
    for (size_t i = 0; i < tablePartNames.size(); ++i)
        if (name == tablePartNames[i])
            return static_cast<TablePart>(i);
    return std::nullopt;
}

} // namespace

void StyleProperties::overlay(const StyleProperties &other)
{
    paragraph.overlay(other.paragraph);
    run.overlay(other.run);
}

class StyleSheetReader final : public XmlHandler {
public:
    StyleSheetReader(StyleSheet &styles, const Theme &theme)
        : m_styles(styles)
        , m_theme(theme)
    {
    }

    void startElement(const XmlElement &element) override
    {
        ++m_depth;
        if (!isWord(element) || m_skippedDepth > 0)
            return;
        switch (element.tag()) {
        case "docDefaults"_tag:
            m_target = &m_styles.m_defaults;
            break;
        case "style"_tag:
            startStyle(element);
            break;
        case "basedOn"_tag:
            m_style.basedOn = valueOf(element).value_or("").toByteArray();
            break;
        case "tblStylePr"_tag:
            if (const auto part = tablePartOf(element.attribute("type"_tag).value_or("")))
                m_target = &m_style.parts[*part];
            else
                skipElement();
            break;
        case "rPrChange"_tag:
        case "pPrChange"_tag:
        case "tblPr"_tag:
        case "trPr"_tag:
        case "tcPr"_tag:
            skipElement();
            break;
        case "pPr"_tag:
            m_isInParagraph = true;
            break;
        case "rPr"_tag:
            m_isInRun = true;
            break;
        default:
            readProperty(element);
            break;
        }
    }

    void endElement(XmlName name) override
    {
        if (m_skippedDepth == m_depth)
            m_skippedDepth = 0;
        else if (m_skippedDepth == 0 && name.space == OfficeSpace::Word)
            endWordElement(name.tag);
        --m_depth;
    }

private:
    void skipElement() { m_skippedDepth = m_depth; }

    void startStyle(const XmlElement &element)
    {
        const QByteArrayView type = element.attribute("type"_tag).value_or("paragraph");
        if (type == "numbering") {
            skipElement();
            return;
        }
        m_style = {};
        if (type == "character")
            m_style.kind = StyleSheet::Kind::Character;
        else if (type == "table")
            m_style.kind = StyleSheet::Kind::Table;
        m_identifier = element.attribute("styleId"_tag).value_or("").toByteArray();
        m_target = &m_style.own;
        if (const auto isDefault = element.attribute("default"_tag); isDefault && booleanOf(isDefault))
            m_styles.m_defaultStyles.insert(static_cast<int>(m_style.kind), m_identifier);
    }

    void readProperty(const XmlElement &element)
    {
        if (!m_target)
            return;
        if (m_isInRun)
            m_target->run.read(element, m_theme);
        else if (m_isInParagraph)
            m_target->paragraph.read(element);
    }

    void endWordElement(XmlTag tag)
    {
        switch (tag) {
        case "docDefaults"_tag:
            m_target = nullptr;
            break;
        case "style"_tag:
            m_target = nullptr;
            if (!m_styles.m_styles.contains(m_identifier))
                m_styles.m_styles.insert(m_identifier, m_style);
            break;
        case "tblStylePr"_tag:
            m_target = &m_style.own;
            break;
        case "pPr"_tag:
            m_isInParagraph = false;
            break;
        case "rPr"_tag:
            m_isInRun = false;
            break;
        default:
            break;
        }
    }

    StyleSheet &m_styles;
    const Theme &m_theme;
    int m_depth = 0;
    int m_skippedDepth = 0;
    bool m_isInParagraph = false;
    bool m_isInRun = false;
    QByteArray m_identifier;
    StyleSheet::Style m_style;
    StyleProperties *m_target = nullptr;
};

Result<StyleSheet, DocumentError::Cause> StyleSheet::read(
    const ZipPackage &package, const QByteArray &partName, const Theme &theme, const Numbering &numbering)
{
    StyleSheet styles;
    StyleSheetReader reader(styles, theme);
    if (const std::optional<DocumentError::Cause> failure = readOfficePart(package, partName, reader))
        return *failure;
    styles.applyLists(numbering);
    return styles;
}

/// A style that belongs to a list inherits the properties of the list level.
void StyleSheet::applyLists(const Numbering &numbering)
{
    for (Style &style : m_styles) {
        const ParagraphProperties own = style.own.paragraph;
        const ParagraphProperties *level =
            own.list ? numbering.levelOf(*own.list, own.listLevel.value_or(0)) : nullptr;
        if (level) {
            style.own.paragraph = *level;
            style.own.paragraph.overlay(own);
        }
    }
}

QByteArray StyleSheet::knownIdentifier(Kind kind, const QByteArray &identifier) const
{
    const auto found = m_styles.constFind(identifier);
    const bool isKnown = found != m_styles.cend() && found->kind == kind;
    return isKnown ? identifier : m_defaultStyles.value(static_cast<int>(kind));
}

StyleProperties StyleSheet::resolve(Kind kind, const QByteArray &identifier, TableParts parts) const
{
    std::vector<const Style *> chain; // the style, followed by those that it is based on
    auto found = m_styles.constFind(identifier);
    while (found != m_styles.cend() && found->kind == kind && chain.size() < maxInheritanceDepth) {
        chain.push_back(&*found);
        found = m_styles.constFind(found->basedOn);
    }
    std::reverse(chain.begin(), chain.end());
    StyleProperties properties;
    for (const Style *style : chain)
        properties.overlay(style->own);
    for (int part = 0; part < tablePartCount; ++part) {
        if (!(parts & (1U << part)))
            continue;
        for (const Style *style : chain) {
            const auto ofPart = style->parts.find(static_cast<TablePart>(part));
            if (ofPart != style->parts.end())
                properties.overlay(ofPart->second);
        }
    }
    return properties;
}

const StyleProperties &StyleSheet::resolvedStyle(const Key &key) const
{
    const auto known = m_cache.find(key);
    if (known != m_cache.end())
        return known->second;
    return m_cache.emplace(key, resolve(key.kind, key.identifier, key.parts)).first->second;
}

const StyleProperties &StyleSheet::style(Kind kind, const QByteArray &identifier) const
{
    return resolvedStyle({kind, 0, knownIdentifier(kind, identifier)});
}

const StyleProperties &StyleSheet::tableStyle(const QByteArray &identifier, TableParts parts) const
{
    return resolvedStyle({Kind::Table, parts, knownIdentifier(Kind::Table, identifier)});
}
