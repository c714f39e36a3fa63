// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfExactValues.h"

#include <algorithm>
#include <cmath>

namespace {

/// Code units of a language tag or a file name.
constexpr qsizetype maxValueLength = 1024;

constexpr int minWeight = 1;
constexpr int maxWeight = 1000;

/// Reads the fields of a value one by one. An invalid field makes the whole value invalid.
class Fields {
public:
    explicit Fields(QStringView value)
        : m_rest(value)
    {
    }

    QStringView next(char16_t separator = u';')
    {
        const qsizetype end = m_rest.indexOf(separator);
        const QStringView field = end < 0 ? m_rest : m_rest.first(end);
        m_rest = end < 0 ? QStringView() : m_rest.sliced(end + 1);
        return field;
    }

    double number(char16_t separator = u';')
    {
        bool isNumber = false;
        const double value = next(separator).toDouble(&isNumber);
        m_isValid = m_isValid && isNumber && std::isfinite(value);
        return value;
    }

    int integer(int min, int max, char16_t separator = u';')
    {
        bool isNumber = false;
        const int value = next(separator).toInt(&isNumber);
        m_isValid = m_isValid && isNumber && value >= min && value <= max;
        return value;
    }

    template <typename Choice>
    Choice choice(Choice last, char16_t separator = u';')
    {
        return static_cast<Choice>(integer(0, static_cast<int>(last), separator));
    }

    [[nodiscard]] bool isAtEnd() const { return m_rest.isEmpty(); }
    [[nodiscard]] bool isValid() const { return m_isValid; }

private:
    QStringView m_rest;
    bool m_isValid = true;
};

std::vector<TabStop> readTabStops(Fields &fields)
{
    std::vector<TabStop> stops;
    while (!fields.isAtEnd() && fields.isValid() && stops.size() <= maxTabStops) {
        const double position = fields.number(u':');
        stops.push_back({position, fields.choice(TabAlignment::Decimal, u',')});
    }
    return stops;
}

std::optional<FontAttributes> parseFont(QStringView value)
{
    Fields fields(value);
    FontAttributes font;
    font.pointSize = fields.number();
    font.weight = fields.integer(minWeight, maxWeight);
    font.slant = fields.choice(FontSlant::Oblique);
    font.tracking = fields.number();
    font.baselineOffset = fields.number();
    if (!fields.isValid() || !fields.isAtEnd())
        return std::nullopt;
    return font;
}

std::optional<ParagraphStyle> parseParagraph(QStringView value)
{
    Fields fields(value);
    ParagraphStyle style;
    style.alignment = fields.choice(TextAlignment::Justified);
    style.direction = fields.choice(WritingDirection::RightToLeft);
    for (double *length :
        {&style.firstLineHeadIndent, &style.headIndent, &style.tailIndent, &style.defaultTabInterval,
            &style.lineSpacing, &style.paragraphSpacingBefore, &style.paragraphSpacing})
        *length = fields.number();
    style.tabStops = readTabStops(fields);
    if (!fields.isValid() || style.tabStops.size() > maxTabStops
        || !std::ranges::is_sorted(style.tabStops, {}, &TabStop::position))
        return std::nullopt;
    return style;
}

} // namespace

void RtfExactValues::add(RtfAction kind, qint32 number, QStringView value)
{
    switch (kind) {
    case RtfAction::ExactFont:
        if (const std::optional<FontAttributes> font = parseFont(value))
            m_fonts.insert(number, *font);
        break;
    case RtfAction::ExactParagraph:
        if (const std::optional<ParagraphStyle> style = parseParagraph(value)) {
            QSharedDataPointer<RtfParagraphFormat> format(new RtfParagraphFormat);
            format->apply(*style);
            m_paragraphs.insert(number, format);
        }
        break;
    case RtfAction::ExactLanguage:
        if (value.size() <= maxValueLength)
            m_languages.insert(number, value.toString());
        break;
    case RtfAction::ExactFile:
        if (value.size() <= maxValueLength)
            m_fileNames.insert(number, value.toString());
        break;
    default:
        break;
    }
}
