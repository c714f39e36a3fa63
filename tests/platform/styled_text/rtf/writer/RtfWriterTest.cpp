// SPDX-License-Identifier: MIT
// The written bytes, held against docs/rtf.md.
#include "platform/styled_text/rtf/writer/RtfWriter.h"

#include "tests/harness/QuillbayTest.h"

namespace {

const QByteArray start = "{\\rtf1\\ansi\\ansicpg1252\\uc0\\deftab560\n";

QByteArray rtfOf(const AttributedString &text, const AttachmentNames &names = {})
{
    return writeRtf(text, 0, text.length(), names).value();
}

/// What stands between the words of plain text and the closing brace.
QByteArray charactersOf(const QString &text)
{
    const QByteArray before = start + "\\pard\\plain ";
    const QByteArray rtf = rtfOf(AttributedString(text));
    EXPECT_TRUE(rtf.startsWith(before) && rtf.endsWith('}')) << rtf.constData();
    return rtf.sliced(before.size()).chopped(1);
}

TextAttributes withFont(const FontAttributes &font)
{
    TextAttributes attributes;
    attributes.font = font;
    return attributes;
}

FontAttributes serif(double size = 12)
{
    FontAttributes font;
    font.family = QStringLiteral("Serif");
    font.pointSize = size;
    return font;
}

/// The RTF of the letter x behind the start.
QByteArray wordsOf(const TextAttributes &attributes)
{
    const QByteArray rtf = rtfOf(AttributedString(QStringLiteral("x"), attributes));
    EXPECT_TRUE(rtf.startsWith(start) && rtf.endsWith(" x}")) << rtf.constData();
    return rtf.sliced(start.size()).chopped(3);
}

QByteArray wordsOf(const FontAttributes &font)
{
    return wordsOf(withFont(font));
}

QByteArray wordsOf(const ParagraphStyle &style)
{
    TextAttributes attributes;
    attributes.paragraphStyle = style;
    return wordsOf(attributes);
}

const QByteArray serifTable = "{\\fonttbl\n{\\f0\\fnil\\fcharset0 Serif;}\n}\n";

TextAttributes withAttachment(const QString &name)
{
    TextAttributes attributes;
    attributes.attachment = std::make_shared<const Attachment>(Attachment{name, "data"});
    return attributes;
}

} // namespace

TEST(RtfWriter, AnEmptyTextIsAnEmptyDocument)
{
    EXPECT_EQ(rtfOf({}), start + "}");
}

TEST(RtfWriter, PrintableAsciiStandsForItselfButForBackslashAndBraces)
{
    QString text;
    for (char16_t character = 0x20; character < 0x7F; ++character)
        text += QChar(character);
    QByteArray expected = text.toLatin1();
    expected.replace("\\", "\\\\").replace("{", "\\{").replace("}", "\\}");
    EXPECT_EQ(charactersOf(text), expected);
}

TEST(RtfWriter, LineEndsAndTabulatorsAreWords)
{
    EXPECT_EQ(charactersOf(QStringLiteral("a\n\nb\tc")), "a\\par\n\\par\nb\\tab c");
}

TEST(RtfWriter, EveryOtherCodeUnitIsASignedNumber)
{
    EXPECT_EQ(charactersOf(QStringLiteral("\u00E9\u0436\u2028\uFFFC")), "\\u233 \\u1078 \\u8232 \\u-4 ");
    const char16_t odd[] = {0, 1, 0x0C, 0x0D, 0x7F, 0x80, 0x7FFF, 0x8000, 0xD800, 0xFFFE, 0xFFFF};
    EXPECT_EQ(charactersOf(QString::fromUtf16(odd, std::size(odd))),
        "\\u0 \\u1 \\u12 \\u13 \\u127 \\u128 \\u32767 \\u-32768 \\u-10240 \\u-2 \\u-1 ");
    EXPECT_EQ(charactersOf(QString::fromUcs4(U"\U0001F600")), "\\u-10179 \\u-8704 ");
}

TEST(RtfWriter, FontsAreInTheTableOnce)
{
    AttributedStringBuilder builder;
    builder.append(u"a", withFont(serif()));
    FontAttributes sans = serif(14);
    sans.family = QStringLiteral("Sans; {\u00FC}");
    builder.append(u"b", withFont(sans));
    builder.append(u"c", withFont(serif(9.5)));
    EXPECT_EQ(rtfOf(builder.build()),
        start
            + "{\\fonttbl\n{\\f0\\fnil\\fcharset0 Serif;}\n{\\f1\\fnil\\fcharset0 Sans\\u59  \\{\\u252 "
              "\\};}\n}\n"
              "\\pard\\plain\\f0\\fs24 a\\plain\\f1\\fs28 b\\plain\\f0\\fs19 c}");
}

TEST(RtfWriter, BoldItalicTrackingAndOffsetAreWords)
{
    FontAttributes font = serif();
    font.weight = 700;
    font.slant = FontSlant::Italic;
    font.tracking = -0.35;
    font.baselineOffset = 3.5;
    EXPECT_EQ(wordsOf(font), serifTable + "\\pard\\plain\\f0\\fs24\\b\\i\\expndtw-7\\up7");
    font = serif();
    font.baselineOffset = -4;
    EXPECT_EQ(wordsOf(font), serifTable + "\\pard\\plain\\f0\\fs24\\dn8");
}

TEST(RtfWriter, WhatNoWordSaysOfAFontIsSaidTwice)
{
    FontAttributes font = serif(12.3);
    font.weight = 650;
    font.slant = FontSlant::Oblique;
    font.tracking = 0.01;
    font.baselineOffset = -0.1;
    EXPECT_EQ(wordsOf(font),
        serifTable
            + "{\\*\\qbyexact\n{\\qbyfont1 12.3;650;2;0.01;-0.1}}\n\\pard\\plain\\f0\\fs25\\b\\i\\qbyfont1");
}

TEST(RtfWriter, EachPartOfAFontThatNoWordSaysIsReasonEnoughForAnExactValue)
{
    const auto exactValueOf = [](const auto &change) {
        FontAttributes font = serif();
        change(font);
        const QByteArray rtf = wordsOf(font);
        const qsizetype from = rtf.indexOf("\\qbyfont1 ");
        return from < 0 ? QByteArray() : rtf.sliced(from, rtf.indexOf('}', from) - from);
    };
    EXPECT_EQ(exactValueOf([](FontAttributes &) {}), "");
    EXPECT_EQ(
        exactValueOf([](FontAttributes &font) { font.pointSize = 12.25; }), "\\qbyfont1 12.25;400;0;0;0");
    EXPECT_EQ(exactValueOf([](FontAttributes &font) { font.pointSize = 0; }), "\\qbyfont1 0;400;0;0;0");
    EXPECT_EQ(
        exactValueOf([](FontAttributes &font) { font.pointSize = 20'000; }), "\\qbyfont1 20000;400;0;0;0");
    EXPECT_EQ(exactValueOf([](FontAttributes &font) { font.weight = 300; }), "\\qbyfont1 12;300;0;0;0");
    EXPECT_EQ(exactValueOf([](FontAttributes &font) { font.slant = FontSlant::Oblique; }),
        "\\qbyfont1 12;400;2;0;0");
    EXPECT_EQ(
        exactValueOf([](FontAttributes &font) { font.tracking = 1e-300; }), "\\qbyfont1 12;400;0;1e-300;0");
    EXPECT_EQ(
        exactValueOf([](FontAttributes &font) { font.baselineOffset = 0.25; }), "\\qbyfont1 12;400;0;0;0.25");
}

TEST(RtfWriter, ALanguageIsItsNumberAndAnExactValueWhereTheNumberMeansAnother)
{
    const auto wordsOfLanguage = [](const char *tag) {
        TextAttributes attributes;
        attributes.language = QString::fromLatin1(tag);
        return wordsOf(attributes);
    };
    const auto exactly = [](const QByteArray &tag, const QByteArray &words) {
        return "{\\*\\qbyexact\n{\\qbylanguage1 " + tag + "}}\n\\pard\\plain" + words + "\\qbylanguage1";
    };
    EXPECT_EQ(wordsOfLanguage("de-AT"), "\\pard\\plain\\lang3079");
    EXPECT_EQ(wordsOfLanguage("de"), "\\pard\\plain\\lang7");
    EXPECT_EQ(wordsOfLanguage("DE-at"), exactly("DE-at", "\\lang3079"));
    EXPECT_EQ(wordsOfLanguage("de-u-co-phonebk"), exactly("de-u-co-phonebk", "\\lang1031"));
    EXPECT_EQ(wordsOfLanguage("tlh"), exactly("tlh", ""));
    EXPECT_EQ(wordsOfLanguage(" no tag "), exactly("\\u32 no tag\\u32 ", ""));
}

TEST(RtfWriter, AlignmentsAndDirectionsAreWords)
{
    const std::pair<TextAlignment, const char *> alignments[] = {{TextAlignment::Left, "\\ql"},
        {TextAlignment::Right, "\\qr"}, {TextAlignment::Center, "\\qc"}, {TextAlignment::Justified, "\\qj"}};
    for (const auto &[alignment, word] : alignments) {
        ParagraphStyle style;
        style.alignment = alignment;
        EXPECT_EQ(wordsOf(style), QByteArray("\\pard") + word + "\\plain");
    }
    ParagraphStyle style;
    style.direction = WritingDirection::LeftToRight;
    EXPECT_EQ(wordsOf(style), "\\pard\\ltrpar\\plain");
    style.direction = WritingDirection::RightToLeft;
    EXPECT_EQ(wordsOf(style), "\\pard\\rtlpar\\plain");
}

TEST(RtfWriter, LengthsOfParagraphsAreTwentiethsOfAPoint)
{
    ParagraphStyle style;
    style.headIndent = 36;
    style.firstLineHeadIndent = 18;
    style.tailIndent = 0.05;
    style.tabStops = {{72, TabAlignment::Left}, {100, TabAlignment::Center}, {144.5, TabAlignment::Right},
        {200, TabAlignment::Decimal}};
    style.defaultTabInterval = 35.45;
    style.lineSpacing = 1;
    style.paragraphSpacingBefore = 6;
    style.paragraphSpacing = 12;
    EXPECT_EQ(wordsOf(style),
        "\\pard\\li720\\fi-"
        "360\\ri1\\tx1440\\tqc\\tx2000\\tqr\\tx2890\\tqdec\\tx4000\\pardeftab709\\slleading20"
        "\\sb120\\sa240\\plain");
}

TEST(RtfWriter, WhatNoWordSaysOfAParagraphIsSaidTwice)
{
    ParagraphStyle style;
    style.alignment = TextAlignment::Center;
    style.direction = WritingDirection::RightToLeft;
    style.firstLineHeadIndent = 1e300;
    style.headIndent = -0.01;
    style.tailIndent = 5000;
    style.tabStops = {{10.01, TabAlignment::Center}, {72, TabAlignment::Decimal}};
    style.paragraphSpacing = 0.1;
    EXPECT_EQ(wordsOf(style),
        "{\\*\\qbyexact\n{\\qbyparagraph1 3;2;1e+300;-0.01;5000;28;0;0;0.1;10.01:1,72:3}}\n"
        "\\pard\\qc\\rtlpar\\li0\\fi32767\\ri32767\\tqc\\tx200\\tqdec\\tx1440\\sa2\\qbyparagraph1\\plain");
}

TEST(RtfWriter, OfManyTabStopsTheFirst64AreWords)
{
    ParagraphStyle style;
    for (int i = 1; i <= 64; ++i)
        style.tabStops.push_back({static_cast<double>(i), TabAlignment::Left});
    EXPECT_EQ(wordsOf(style).count("\\tx"), 64);
    EXPECT_FALSE(wordsOf(style).contains("qbyexact"));
    style.tabStops.push_back({65, TabAlignment::Left});
    EXPECT_EQ(wordsOf(style).count("\\tx"), 64);
    EXPECT_TRUE(wordsOf(style).contains(",64:0,65:0}"));
}

TEST(RtfWriter, WordsAreWrittenOnlyWhereSomethingChanges)
{
    TextAttributes plain = withFont(serif());
    TextAttributes large = withFont(serif(24));
    TextAttributes indented = plain;
    indented.paragraphStyle.headIndent = 20;
    AttributedStringBuilder builder;
    builder.append(u"a", plain);
    builder.append(u"b", large);
    builder.append(u"c\n", plain);
    builder.append(u"d", indented);
    EXPECT_EQ(rtfOf(builder.build()),
        start + serifTable
            + "\\pard\\plain\\f0\\fs24 a\\plain\\f0\\fs48 b\\plain\\f0\\fs24 c\\par\n"
              "\\pard\\li400\\fi-400 d}");
}

TEST(RtfWriter, EqualExactValuesAreInTheTableOnce)
{
    AttributedStringBuilder builder;
    for (int i = 0; i < 3; ++i) {
        TextAttributes attributes = withFont(serif(10.1));
        attributes.font->family += QString::number(i);
        builder.append(u"a", attributes);
    }
    const QByteArray rtf = rtfOf(builder.build());
    EXPECT_EQ(rtf.count("\\qbyfont1 "), 4); // one of them in the table
    EXPECT_FALSE(rtf.contains("\\qbyfont2"));
}

TEST(RtfWriter, AnAttachmentIsAGroupWithItsStoredName)
{
    const AttributedString text(QStringLiteral("\uFFFC"), withAttachment(QStringLiteral("a b.png")));
    EXPECT_EQ(rtfOf(text, [](const Attachment &attachment) { return attachment.fileName; }),
        start + "\\pard\\plain {{\\NeXTGraphic a b.png \\width0 \\height0}\\'ac}}");
}

TEST(RtfWriter, AnAttachmentThatIsStoredUnderAnotherNameKeepsItsOwn)
{
    const AttributedString text(QStringLiteral("\uFFFC"), withAttachment(QStringLiteral("../\n;\u00E9")));
    EXPECT_EQ(rtfOf(text, [](const Attachment &) { return QStringLiteral("\u00FC"); }),
        start
            + "{\\*\\qbyexact\n{\\qbyfile1 ../\\u10 \\u59 \\u233 }}\n"
              "\\pard\\plain {{\\NeXTGraphic \\u252  \\width0 \\height0\\qbyfile1}\\'ac}}");
}

TEST(RtfWriter, AnAttachmentThatIsStoredNowhereLeavesItsCharacter)
{
    const AttributedString text(QStringLiteral("\uFFFC"), withAttachment(QStringLiteral("a")));
    EXPECT_EQ(rtfOf(text), start + "\\pard\\plain \\u-4 }");
    EXPECT_EQ(rtfOf(text, [](const Attachment &) { return std::nullopt; }), start + "\\pard\\plain \\u-4 }");
}

TEST(RtfWriter, AnAttachmentOnAnotherCharacterIsLeftOut)
{
    const AttributedString text(QStringLiteral("ab"), withAttachment(QStringLiteral("a")));
    int questions = 0;
    EXPECT_EQ(rtfOf(text,
                  [&](const Attachment &) {
                      ++questions;
                      return QStringLiteral("a");
                  }),
        start + "\\pard\\plain ab}");
    EXPECT_EQ(questions, 0);
}

TEST(RtfWriter, TheNameOfAnAttachmentIsAskedForOnce)
{
    AttributedStringBuilder builder;
    const TextAttributes attributes = withAttachment(QStringLiteral("a"));
    builder.append(u"x", attributes);
    builder.append(u"\uFFFC-\uFFFC", attributes);
    builder.append(u"y", {});
    builder.append(u"\uFFFC", attributes);
    int questions = 0;
    const QByteArray rtf = rtfOf(builder.build(), [&](const Attachment &attachment) {
        ++questions;
        return attachment.fileName;
    });
    EXPECT_EQ(questions, 1);
    EXPECT_EQ(rtf.count("NeXTGraphic"), 3);
}

TEST(RtfWriter, ARangeIsWrittenWithNothingOfWhatIsAroundIt)
{
    AttributedStringBuilder builder;
    FontAttributes sans = serif(9.1);
    sans.family = QStringLiteral("Sans");
    builder.append(u"before", withFont(sans));
    builder.append(u"abc", withFont(serif()));
    builder.append(u"def", withFont(serif(24)));
    builder.append(u"\uFFFC", withAttachment(QStringLiteral("a")));
    const AttributedString text = builder.build();
    const auto mustNotAsk = [](const Attachment &attachment) {
        ADD_FAILURE();
        return attachment.fileName;
    };
    EXPECT_EQ(writeRtf(text, 7, 3, mustNotAsk).value(),
        start + serifTable + "\\pard\\plain\\f0\\fs24 bc\\plain\\f0\\fs48 d}");
    EXPECT_EQ(writeRtf(text, 6, 0).value(), start + "}");
    EXPECT_EQ(writeRtf(text, text.length(), 5).value(), start + "}");
}

TEST(RtfWriter, ARangeIsCutToTheText)
{
    const AttributedString text(QStringLiteral("abc"));
    EXPECT_EQ(writeRtf(text, 1, 100).value(), start + "\\pard\\plain bc}");
    EXPECT_EQ(writeRtf(text, 1, std::numeric_limits<qsizetype>::max()).value(), start + "\\pard\\plain bc}");
    EXPECT_EQ(writeRtf(text, 100, 1).value(), start + "}");
    EXPECT_EQ(writeRtf(text, std::numeric_limits<qsizetype>::max(), 1).value(), start + "}");
    EXPECT_EQ(writeRtf({}, 0, 1).value(), start + "}");
}

TEST(RtfWriter, NoNumberAndInfinityBecomeNumbersThatOtherProgramsCanRead)
{
    FontAttributes font = serif(std::numeric_limits<double>::quiet_NaN());
    font.tracking = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(wordsOf(font).contains("\\plain\\f0\\fs1\\expndtw32767"));
}
