// SPDX-License-Identifier: MIT
#include "documents/rtf/writer/ExactValues.h"

#include "documents/rtf/writer/RtfEscapes.h"

#include <charconv>

namespace {

/// Appends the shortest digits that read back as the same number.
void appendNumber(QByteArray &value, double number)
{
    char digits[32]; // at most 17 digits, a sign, a point and an exponent
    const std::to_chars_result result = std::to_chars(digits, digits + sizeof digits, number);
    value.append(digits, result.ptr - digits);
}

template <typename Choice>
void appendChoice(QByteArray &value, Choice choice)
{
    value.append(QByteArray::number(static_cast<int>(choice)));
}

QByteArray escapeName(const QString &name)
{
    QByteArray value;
    appendRtfName(value, name);
    return value;
}

} // namespace

QByteArray ExactValues::wordFor(const char *kind, const QByteArray &value)
{
    QHash<QByteArray, QByteArray> &words = m_words[kind];
    QByteArray &word = words[value];
    if (word.isEmpty()) {
        word = QByteArray("\\").append(kind).append(QByteArray::number(words.size()));
        m_groups.append("\n{").append(word).append(' ').append(value).append('}');
    }
    return word;
}

QByteArray ExactValues::fontWord(const FontAttributes &font)
{
    QByteArray value;
    appendNumber(value, font.pointSize);
    value.append(';').append(QByteArray::number(font.weight)).append(';');
    appendChoice(value, font.slant);
    for (const double number : {font.tracking, font.baselineOffset}) {
        value.append(';');
        appendNumber(value, number);
    }
    return wordFor("qbyfont", value);
}

QByteArray ExactValues::paragraphWord(const ParagraphStyle &style)
{
    QByteArray value;
    appendChoice(value, style.alignment);
    value.append(';');
    appendChoice(value, style.direction);
    for (const double number :
        {style.firstLineHeadIndent, style.headIndent, style.tailIndent, style.defaultTabInterval,
            style.lineSpacing, style.paragraphSpacingBefore, style.paragraphSpacing}) {
        value.append(';');
        appendNumber(value, number);
    }
    char separator = ';';
    for (const TabStop &stop : style.tabStops) {
        value.append(separator);
        appendNumber(value, stop.position);
        value.append(':');
        appendChoice(value, stop.alignment);
        separator = ',';
    }
    if (style.tabStops.empty())
        value.append(';');
    return wordFor("qbyparagraph", value);
}

QByteArray ExactValues::languageWord(const QString &tag)
{
    return wordFor("qbylanguage", escapeName(tag));
}

QByteArray ExactValues::fileWord(const QString &name)
{
    return wordFor("qbyfile", escapeName(name));
}

QByteArray ExactValues::table() const
{
    return m_groups.isEmpty() ? QByteArray() : "{\\*\\qbyexact" + m_groups + "}\n";
}
