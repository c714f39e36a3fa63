// SPDX-License-Identifier: MIT
#include "documents/docx/PackageDocument.h"

#include "documents/Lengths.h"

namespace {

constexpr double minTabInterval = 1; // points

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
        const std::optional<double> interval = pointsOf(valueOf(element), twipsPerPoint);
        if (interval && *interval >= minTabInterval)
            m_styles.defaultTabInterval = *interval;
    }
    void endElement(XmlName) override { }

private:
    DocumentStyles &m_styles;
};

/// Absent if the package has no such part.
std::optional<QByteArray> findPart(
    const ZipPackage &package, const Relationships &relationships, const char *type)
{
    const std::optional<QByteArray> part = relationships.partByType(type);
    return part && package.contains(*part) ? part : std::nullopt;
}

/// Moves a value to its place, or returns the failure.
template <typename Value>
std::optional<DocumentError::Cause> assign(Value &place, Result<Value, DocumentError::Cause> value)
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
    if (const auto part = findPart(package, ofMainPart, "theme"))
        failure = assign(styles.theme, Theme::read(package, *part));
    const auto numbering = findPart(package, ofMainPart, "numbering");
    if (numbering && !failure)
        failure = assign(styles.numbering, Numbering::read(package, *numbering));
    const auto styleSheet = findPart(package, ofMainPart, "styles");
    if (styleSheet && !failure)
        failure =
            assign(styles.styleSheet, StyleSheet::read(package, *styleSheet, styles.theme, styles.numbering));
    const auto settings = findPart(package, ofMainPart, "settings");
    if (settings && !failure) {
        SettingsReader reader(styles);
        failure = readOfficePart(package, *settings, reader);
    }
    if (failure)
        return *failure;
    return styles;
}
