// SPDX-License-Identifier: MIT
#include "documents/docx/DocumentStyles.h"

#include "documents/docx/Measures.h"

namespace {

constexpr double smallestTabInterval = 1; // points

class SettingsReader final : public XmlHandler {
public:
    explicit SettingsReader(DocumentStyles &styles)
        : m_styles(styles)
    {
    }

    void startElement(const XmlElement &element) override
    {
        if (element.name() != wordName("defaultTabStop"_tag))
            return;
        const std::optional<double> interval = pointsOf(element.value(), twentieths);
        if (interval && *interval >= smallestTabInterval)
            m_styles.defaultTabInterval = *interval;
    }
    void endElement(XmlName) override { }

private:
    DocumentStyles &m_styles;
};

/// Absent where there is no such part.
std::optional<QByteArray> presentPart(
    const ZipPackage &package, const Relationships &relationships, const char *type)
{
    const std::optional<QByteArray> part = relationships.partByType(type);
    return part && package.contains(*part) ? part : std::nullopt;
}

/// Puts what was read in its place; a failure is returned.
template <typename Value>
std::optional<DocumentError::Cause> put(Value &place, Result<Value, DocumentError::Cause> value)
{
    if (!value)
        return value.error();
    place = std::move(value).value();
    return std::nullopt;
}

} // namespace

Result<DocumentStyles, DocumentError::Cause> DocumentStyles::read(
    const ZipPackage &package, const Relationships &ofMainPart)
{
    DocumentStyles styles;
    std::optional<DocumentError::Cause> failure;
    if (const auto part = presentPart(package, ofMainPart, "theme"))
        failure = put(styles.theme, Theme::read(package, *part));
    const auto numbering = presentPart(package, ofMainPart, "numbering");
    if (numbering && !failure)
        failure = put(styles.numbering, Numbering::read(package, *numbering));
    const auto styleSheet = presentPart(package, ofMainPart, "styles");
    if (styleSheet && !failure)
        failure =
            put(styles.styleSheet, StyleSheet::read(package, *styleSheet, styles.theme, styles.numbering));
    const auto settings = presentPart(package, ofMainPart, "settings");
    if (settings && !failure) {
        SettingsReader reader(styles);
        failure = readXmlPart(package, *settings, reader);
    }
    if (failure)
        return *failure;
    return styles;
}
