// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/writer/RandomText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

constexpr char16_t oddCharacters[] = {0x0000, 0x0001, 0x0007, 0x000A, 0x000A, 0x0009, 0x000B, 0x000C, 0x000D,
    0x001B, 0x001F, 0x0020, u'\\', u'{', u'}', u'\'', u'*', u';', u'-', 0x007F, 0x0080, 0x0085, 0x009F,
    0x00A0, 0x00AC, 0x00AD, 0x0301, 0x200B, 0x200D, 0x200E, 0x2011, 0x2014, 0x2022, 0x2028, 0x2029, 0x3000,
    0x4E2D, 0xAC00, 0xD7FF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xF020, 0xF0FF, 0xFDD0, 0xFEFF, 0xFFFC,
    0xFFFC, 0xFFFD, 0xFFFE, 0xFFFF};

} // namespace

/// Mostly a multiple of the unit, which RTF can express exactly.
double RandomText::length(double unit)
{
    using Limits = std::numeric_limits<double>;
    static constexpr double odd[] = {0, -0.0, 0.1, 1.0 / 3, -1e-300, Limits::denorm_min(), Limits::min(),
        1e300, Limits::max(), Limits::lowest(), 1638.35, 1638.4, -1638.4, -1638.45, 107374182.4};
    switch (below(8)) {
    case 0:
        return oneOf(odd);
    case 1:
        return std::uniform_real_distribution<double>(-100, 2000)(m_random);
    case 2:
        return std::ldexp(static_cast<double>(m_random()), static_cast<int>(below(1900)) - 1000);
    default:
        return (static_cast<double>(below(2000)) - 500) * unit;
    }
}

QString RandomText::characters(size_t longest)
{
    QString text;
    for (size_t rest = 1 + below(longest); rest > 0; --rest) {
        switch (below(6)) {
        case 0:
            text += QChar(oneOf(oddCharacters));
            break;
        case 1:
            text += QChar(static_cast<char16_t>(m_random()));
            break;
        case 2:
            text += QString::fromUcs4(&U"\U0001F600\U00020000\U0010FFFF"[below(3)], 1);
            break;
        default:
            text += QChar(static_cast<char16_t>(0x20 + below(0x5F)));
        }
    }
    return text;
}

/// The name of a font or a file.
QString RandomText::name()
{
    static const QString names[] = {QString(), QStringLiteral("Serif"), QStringLiteral("Sans Bold"),
        QStringLiteral("a.png"), QStringLiteral("A.PNG"), QStringLiteral("../a.png"),
        QStringLiteral("/etc/passwd"), QStringLiteral(".."), QStringLiteral("."), QStringLiteral("TXT.rtf"),
        QStringLiteral("txt.RTF"), QStringLiteral("attachment-1.png"), QStringLiteral("attachment-2"),
        QStringLiteral(" a "), QStringLiteral("a\nb\tc;d"), QStringLiteral("\\{}"),
        QStringLiteral("M\u00FCller \u4E2D\u6587.jpeg"), QString(QChar(0xD800)) + QStringLiteral(".png"),
        QStringLiteral("\u00E9"), QStringLiteral("e\u0301"), QStringLiteral("x").repeated(300),
        QStringLiteral("\u4E2D").repeated(100), QStringLiteral("5"), QStringLiteral("-5 \\width20")};
    return oneIn(4) ? characters(20) : oneOf(names);
}

FontAttributes RandomText::font()
{
    FontAttributes font;
    font.family = name();
    font.pointSize = oneIn(2) ? 12 : length(0.5);
    font.weight = oneIn(3) ? 1 + static_cast<int>(below(1000)) : 400 + 300 * static_cast<int>(below(2));
    font.slant = static_cast<FontSlant>(below(3));
    font.tracking = oneIn(2) ? 0 : length(0.05);
    font.baselineOffset = oneIn(2) ? 0 : length(0.5);
    return font;
}

ParagraphStyle RandomText::paragraphStyle()
{
    ParagraphStyle style;
    style.alignment = static_cast<TextAlignment>(below(5));
    style.direction = static_cast<WritingDirection>(below(3));
    for (double *const value :
        {&style.firstLineHeadIndent, &style.headIndent, &style.tailIndent, &style.defaultTabInterval,
            &style.lineSpacing, &style.paragraphSpacingBefore, &style.paragraphSpacing})
        if (oneIn(3))
            *value = length(0.05);
    size_t stops = 0;
    if (oneIn(3))
        stops = below(5);
    else if (oneIn(20))
        stops = below(200);
    for (size_t i = 0; i < stops; ++i)
        style.tabStops.push_back({length(0.05), static_cast<TabAlignment>(below(4))});
    std::stable_sort(style.tabStops.begin(), style.tabStops.end(),
        [](const TabStop &left, const TabStop &right) { return left.position < right.position; });
    return style;
}

QString RandomText::language()
{
    static const QString tags[] = {QString(), QString(), QStringLiteral("en"), QStringLiteral("en-US"),
        QStringLiteral("en-us"), QStringLiteral("de-CH-1996"), QStringLiteral("zh-Hant-TW"),
        QStringLiteral("zh-TW"), QStringLiteral("sr-Latn"), QStringLiteral("nb"), QStringLiteral("no"),
        QStringLiteral("he"), QStringLiteral("iw"), QStringLiteral("x-private"), QStringLiteral("tlh"),
        QStringLiteral("und"), QStringLiteral("en_US"), QStringLiteral("de-u-co-phonebk"),
        QStringLiteral("no tag; {at} all\n\u4E2D")};
    return oneOf(tags);
}

TextAttributes RandomText::attributes()
{
    TextAttributes attributes;
    if (!oneIn(3))
        attributes.font = font();
    if (oneIn(2))
        attributes.paragraphStyle = paragraphStyle();
    if (oneIn(2))
        attributes.language = language();
    if (oneIn(3)) {
        const QByteArray bytes("\0{\xFF}data", 8);
        attributes.attachment = std::make_shared<const Attachment>(
            Attachment{name(), bytes.repeated(static_cast<qsizetype>(below(4)))});
    }
    return attributes;
}

AttributedString RandomText::text(size_t maxRuns, size_t maxRunLength)
{
    std::vector<TextAttributes> pool{{}};
    for (size_t i = below(6); i > 0; --i)
        pool.push_back(attributes());
    AttributedStringBuilder builder;
    for (size_t runs = below(maxRuns + 1); runs > 0; --runs) {
        const TextAttributes &chosen = oneIn(20) ? pool.emplace_back(attributes()) : pool[below(pool.size())];
        if (chosen.attachment)
            builder.append(QString(static_cast<qsizetype>(1 + below(2)), QChar(attachmentCharacter)), chosen);
        else
            builder.append(characters(maxRunLength), chosen);
    }
    return builder.build();
}
