// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/writer/WrittenRtf.h"

#include <gtest/gtest.h>

const QByteArray WrittenRtf::start = "{\\rtf1\\ansi\\ansicpg1252\\uc0\\deftab560\n";
const QByteArray WrittenRtf::serifTable = "{\\fonttbl\n{\\f0\\fnil\\fcharset0 Serif;}\n}\n";

QByteArray WrittenRtf::rtfOf(const AttributedString &text, const AttachmentNames &names)
{
    return writeRtf(text, 0, text.length(), names).value();
}

FontAttributes WrittenRtf::serif(double size)
{
    FontAttributes font;
    font.family = QStringLiteral("Serif");
    font.pointSize = size;
    return font;
}

TextAttributes WrittenRtf::withFont(const FontAttributes &font)
{
    TextAttributes attributes;
    attributes.font = font;
    return attributes;
}

QByteArray WrittenRtf::wordsOf(const TextAttributes &attributes)
{
    const QByteArray rtf = rtfOf(AttributedString(QStringLiteral("x"), attributes));
    EXPECT_TRUE(rtf.startsWith(start) && rtf.endsWith(" x}")) << rtf.constData();
    return rtf.sliced(start.size()).chopped(3);
}

QByteArray WrittenRtf::wordsOf(const FontAttributes &font)
{
    return wordsOf(withFont(font));
}

QByteArray WrittenRtf::wordsOf(const ParagraphStyle &style)
{
    TextAttributes attributes;
    attributes.paragraphStyle = style;
    return wordsOf(attributes);
}
