// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/writer/TextDifference.h"

#include <algorithm>

namespace {

QString described(const FontAttributes &font)
{
    return QStringLiteral("font '%1' size %2 weight %3 slant %4 tracking %5 offset %6")
        .arg(font.family)
        .arg(font.pointSize, 0, 'g', 17)
        .arg(font.weight)
        .arg(static_cast<int>(font.slant))
        .arg(font.tracking, 0, 'g', 17)
        .arg(font.baselineOffset, 0, 'g', 17);
}

QString described(const ParagraphStyle &style)
{
    QString text = QStringLiteral("alignment %1 direction %2 lengths")
                       .arg(static_cast<int>(style.alignment))
                       .arg(static_cast<int>(style.direction));
    for (const double length :
        {style.firstLineHeadIndent, style.headIndent, style.tailIndent, style.defaultTabInterval,
            style.lineSpacing, style.paragraphSpacingBefore, style.paragraphSpacing})
        text += QStringLiteral(" %1").arg(length, 0, 'g', 17);
    for (const TabStop &stop : style.tabStops)
        text +=
            QStringLiteral(" tab %1:%2").arg(stop.position, 0, 'g', 17).arg(static_cast<int>(stop.alignment));
    return text;
}

QString described(const TextAttributes &attributes)
{
    QString text = attributes.font ? described(*attributes.font) : QStringLiteral("no font");
    text += QStringLiteral("; ") + described(attributes.paragraphStyle) + QStringLiteral("; language '")
        + attributes.language + u'\'';
    if (attributes.attachment)
        text += QStringLiteral("; attachment '%1' of %2 bytes")
                    .arg(attributes.attachment->fileName)
                    .arg(attributes.attachment->contents.size());
    return text;
}

} // namespace

QString differenceBetween(const AttributedString &expected, const AttributedString &actual)
{
    if (expected == actual)
        return {};
    const qsizetype common = std::min(expected.length(), actual.length());
    for (qsizetype i = 0; i < common; ++i) {
        if (expected.string()[i] != actual.string()[i])
            return QStringLiteral("U+%1 is U+%2 at %3")
                .arg(expected.string()[i].unicode(), 4, 16)
                .arg(actual.string()[i].unicode(), 4, 16)
                .arg(i);
        if (!(expected.attributesAt(i) == actual.attributesAt(i)))
            return QStringLiteral("at %1: ").arg(i) + described(expected.attributesAt(i))
                + QStringLiteral(" is ") + described(actual.attributesAt(i));
    }
    return QStringLiteral("length %1 is %2").arg(expected.length()).arg(actual.length());
}

AttributedString rangeOf(const AttributedString &text, qsizetype start, qsizetype length)
{
    const qsizetype end = std::min(start + length, text.length());
    AttributedStringBuilder builder;
    for (qsizetype i = start; i < end; ++i)
        builder.append(QStringView(text.string()).sliced(i, 1), text.attributesAt(i));
    return builder.build();
}
