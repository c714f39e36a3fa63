// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfExactValues.h"

#include <algorithm>
#include <cmath>

namespace {

/// Of a language's tag or a file's name: code units.
constexpr qsizetype maxValueLength = 1024;

constexpr int lightest = 1;
constexpr int heaviest = 1000;

/// Takes the fields of a value one by one; once one made no sense, nothing does.
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
        m_makesSense = m_makesSense && isNumber && std::isfinite(value);
        return value;
    }

    int integer(int least, int most, char16_t separator = u';')
    {
        bool isNumber = false;
        const int value = next(separator).toInt(&isNumber);
        m_makesSense = m_makesSense && isNumber && value >= least && value <= most;
        return value;
    }

    template <typename Choice>
    Choice choice(Choice last, char16_t separator = u';')
    {
        return static_cast<Choice>(integer(0, static_cast<int>(last), separator));
    }

    [[nodiscard]] bool isAtEnd() const { return m_rest.isEmpty(); }
    [[nodiscard]] bool makeSense() const { return m_makesSense; }

private:
    QStringView m_rest;
    bool m_makesSense = true;
};

/// The separator behind an entry but for the last one's.
std::vector<TabStop> tabStops(Fields &fields)
{
    std::vector<TabStop> stops;
    while (!fields.isAtEnd() && fields.makeSense() && stops.size() <= mostTabStops) {
        const double position = fields.number(u':');
        stops.push_back({position, fields.choice(TabAlignment::Decimal, u',')});
    }
    return stops;
}

std::optional<FontAttributes> exactFont(QStringView value)
{
    Fields fields(value);
    FontAttributes font;
    font.pointSize = fields.number();
    font.weight = fields.integer(lightest, heaviest);
    font.slant = fields.choice(FontSlant::Oblique);
    font.tracking = fields.number();
    font.baselineOffset = fields.number();
    if (!fields.makeSense() || !fields.isAtEnd())
        return std::nullopt;
    return font;
}

std::optional<ParagraphStyle> exactParagraph(QStringView value)
{
    Fields fields(value);
    ParagraphStyle style;
    style.alignment = fields.choice(TextAlignment::Justified);
    style.direction = fields.choice(WritingDirection::RightToLeft);
    for (double *length :
        {&style.firstLineHeadIndent, &style.headIndent, &style.tailIndent, &style.defaultTabInterval,
            &style.lineSpacing, &style.paragraphSpacingBefore, &style.paragraphSpacing})
        *length = fields.number();
    style.tabStops = tabStops(fields);
    if (!fields.makeSense() || style.tabStops.size() > mostTabStops
        || !std::ranges::is_sorted(style.tabStops, {}, &TabStop::position))
        return std::nullopt;
    return style;
}

} // namespace

void RtfExactValues::add(RtfAction kind, qint32 number, QStringView value)
{
    switch (kind) {
    case RtfAction::ExactFont:
        if (const std::optional<FontAttributes> font = exactFont(value))
            m_fonts.insert(number, *font);
        break;
    case RtfAction::ExactParagraph:
        if (const std::optional<ParagraphStyle> style = exactParagraph(value)) {
            QSharedDataPointer<RtfParagraphFormat> format(new RtfParagraphFormat);
            format->choose(*style);
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
