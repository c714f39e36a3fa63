// SPDX-License-Identifier: MIT
#include "documents/docx/Theme.h"

#include "documents/docx/OfficeXml.h"

#include <algorithm>

namespace {

constexpr qsizetype maxFontNameLength = 255; // bytes

} // namespace

class ThemeReader final : public XmlHandler {
public:
    explicit ThemeReader(Theme &theme)
        : m_theme(theme)
    {
    }

    void startElement(const XmlElement &element) override
    {
        if (element.name().space != OfficeSpace::Drawing)
            return;
        switch (element.tag()) {
        case "majorFont"_tag:
            m_group = "major";
            break;
        case "minorFont"_tag:
            m_group = "minor";
            break;
        case "latin"_tag:
            readTypeface(element, {"Ascii", "HAnsi"});
            break;
        case "ea"_tag:
            readTypeface(element, {"EastAsia"});
            break;
        case "cs"_tag:
            readTypeface(element, {"Bidi"});
            break;
        default:
            break;
        }
    }
    void endElement(XmlName name) override
    {
        if (name.tag == "majorFont"_tag || name.tag == "minorFont"_tag)
            m_group.clear();
    }

private:
    void readTypeface(const XmlElement &element, std::initializer_list<const char *> scripts)
    {
        const auto typeface = element.attribute(plainName("typeface"_tag));
        if (m_group.isEmpty() || !typeface)
            return;
        for (const char *script : scripts)
            m_theme.m_fonts.insert(m_group + script, fontNameOf(*typeface));
    }

    Theme &m_theme;
    QByteArray m_group;
};

Result<Theme, DocumentError::Cause> Theme::read(const ZipPackage &package, const QByteArray &partName)
{
    Theme theme;
    ThemeReader reader(theme);
    if (const std::optional<DocumentError::Cause> failure = readOfficePart(package, partName, reader))
        return *failure;
    return theme;
}

QString fontNameOf(QByteArrayView name)
{
    return QString::fromUtf8(name.first(std::min(name.size(), maxFontNameLength)));
}
