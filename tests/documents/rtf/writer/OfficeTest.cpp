// SPDX-License-Identifier: MIT
// An office program reads the RTF of RtfWriter and writes RTF for RtfReader.
#include "documents/rtf/RtfReader.h"
#include "documents/rtf/writer/RtfWriter.h"

#include "tests/documents/rtf/writer/FlatOdf.h"
#include "tests/documents/rtf/writer/OfficeDocuments.h"
#include "tests/harness/QuillbayTest.h"

namespace {

constexpr double nearly = 0.05; // points; the office program rounds to ten thousandths of an inch

class Office : public QuillbayTest {
protected:
    void SetUp() override
    {
        SKIP_WITHOUT_PACKAGE(
            OfficeDocuments::areConvertible(), "libreoffice-writer or libreoffice-writer-nogui");
    }

    static QByteArray rtfOf(const AttributedString &text) { return writeRtf(text, 0, text.length()).value(); }
    static AttributedString fromRtf(const QByteArray &document, const char *format)
    {
        return readRtf(OfficeDocuments::convert(document, format, "rtf")).value();
    }
};

FontAttributes dejaVuSerif(double size)
{
    FontAttributes font;
    font.family = QStringLiteral("DejaVu Serif");
    font.pointSize = size;
    return font;
}

TextAttributes fontOnly(const FontAttributes &font)
{
    TextAttributes attributes;
    attributes.font = font;
    return attributes;
}

TextAttributes withStyle(const ParagraphStyle &style)
{
    TextAttributes attributes = fontOnly(dejaVuSerif(12));
    attributes.paragraphStyle = style;
    return attributes;
}

ParagraphStyle aligned(TextAlignment alignment)
{
    ParagraphStyle style;
    style.alignment = alignment;
    return style;
}

/// The attributes of a piece of text, which must exist.
TextAttributes attributesOf(const AttributedString &text, const QString &piece)
{
    const qsizetype at = text.string().indexOf(piece);
    EXPECT_GE(at, 0) << piece.toStdString() << " in " << text.string().toStdString();
    return at < 0 ? TextAttributes() : text.attributesAt(at);
}

FontAttributes fontOf(const AttributedString &text, const QString &piece)
{
    return attributesOf(text, piece).font.value_or(FontAttributes{});
}

} // namespace

TEST_F(Office, ReadsTheText)
{
    const QString text =
        QStringLiteral("Gr\u00FC\u00DFe \u4E2D\u6587 \u05D0\u05D1 \U0001F600\n\n\\{a\\} 100%;\tb\nlast");
    AttributedStringBuilder builder;
    // Also with exact values, which it ignores.
    builder.append(QStringView(text).first(10), fontOnly(dejaVuSerif(12.3)));
    builder.append(QStringView(text).sliced(10), {});
    const QByteArray plain =
        OfficeDocuments::convert(rtfOf(builder.build()), "rtf", "txt:Text (encoded):UTF8");
    QString read = QString::fromUtf8(plain);
    if (read.startsWith(QChar(0xFEFF)))
        read.remove(0, 1);
    EXPECT_EQ(read, text + u'\n');
}

TEST_F(Office, ReadsFonts)
{
    FontAttributes odd = dejaVuSerif(12.3);
    odd.weight = 650;
    odd.slant = FontSlant::Oblique;
    FontAttributes bold = dejaVuSerif(14);
    bold.weight = 700;
    FontAttributes italic = dejaVuSerif(9.5);
    italic.slant = FontSlant::Italic;
    italic.family = QStringLiteral("M\u00FCller Sans");
    AttributedStringBuilder builder;
    builder.append(u"plain ", fontOnly(dejaVuSerif(16)));
    builder.append(u"bold ", fontOnly(bold));
    builder.append(u"italic ", fontOnly(italic));
    builder.append(u"odd", fontOnly(odd));
    const FlatOdf document(OfficeDocuments::convert(rtfOf(builder.build()), "rtf", "fodt"));
    struct Expected {
        const char *piece;
        const char *family;
        const char *size;
        const char *weight;
        const char *style;
    };
    for (const Expected &expected : {Expected{"plain", "DejaVu Serif", "16pt", "", ""},
             Expected{"bold", "DejaVu Serif", "14pt", "bold", ""},
             Expected{"italic", "M\u00FCller Sans", "9.5pt", "", "italic"},
             Expected{"odd", "DejaVu Serif", "12.5pt", "bold", "italic"}}) {
        const QString piece = QString::fromLatin1(expected.piece);
        EXPECT_EQ(document.ofSpan(piece, "font-name"), QString::fromUtf8(expected.family));
        EXPECT_EQ(document.ofSpan(piece, "font-size"), QString::fromLatin1(expected.size)) << expected.piece;
        EXPECT_EQ(document.ofSpan(piece, "font-weight"), QString::fromLatin1(expected.weight))
            << expected.piece;
        EXPECT_EQ(document.ofSpan(piece, "font-style"), QString::fromLatin1(expected.style))
            << expected.piece;
    }
}

TEST_F(Office, ReadsAlignmentsAndIndents)
{
    ParagraphStyle indented = aligned(TextAlignment::Left);
    indented.headIndent = 36;
    indented.firstLineHeadIndent = 18;
    indented.tailIndent = 20.3; // not a multiple of a twip
    indented.paragraphSpacingBefore = 6;
    indented.paragraphSpacing = 12;
    AttributedStringBuilder builder;
    builder.append(u"natural\n", withStyle({}));
    builder.append(u"left\n", withStyle(indented));
    builder.append(u"centred\n", withStyle(aligned(TextAlignment::Center)));
    builder.append(u"right\n", withStyle(aligned(TextAlignment::Right)));
    builder.append(u"justified", withStyle(aligned(TextAlignment::Justified)));
    const FlatOdf document(OfficeDocuments::convert(rtfOf(builder.build()), "rtf", "fodt"));

    EXPECT_NEAR(document.points(QStringLiteral("left"), "margin-left"), 36, nearly);
    EXPECT_NEAR(document.points(QStringLiteral("left"), "text-indent"), -18, nearly);
    EXPECT_NEAR(document.points(QStringLiteral("left"), "margin-right"), 20.3, nearly);
    EXPECT_NEAR(document.points(QStringLiteral("left"), "margin-top"), 6, nearly);
    EXPECT_NEAR(document.points(QStringLiteral("left"), "margin-bottom"), 12, nearly);
    EXPECT_EQ(document.ofParagraph(QStringLiteral("left"), "text-align"), QStringLiteral("start"));
    EXPECT_EQ(document.ofParagraph(QStringLiteral("centred"), "text-align"), QStringLiteral("center"));
    EXPECT_EQ(document.ofParagraph(QStringLiteral("centred"), "margin-left"), QString());
    EXPECT_EQ(document.ofParagraph(QStringLiteral("right"), "text-align"), QStringLiteral("end"));
    EXPECT_EQ(document.ofParagraph(QStringLiteral("justified"), "text-align"), QStringLiteral("justify"));
    EXPECT_EQ(document.ofParagraph(QStringLiteral("natural"), "text-align"), QString());
}

TEST_F(Office, WritesWebPagesAsReadableRtf)
{
    const AttributedString text = fromRtf(R"(<!DOCTYPE html>
<html><head><meta charset="utf-8"></head><body>
<p style="font-family: 'DejaVu Serif'; font-size: 15pt">plain <b>bold</b> <i>italic</i> Grüße 中文 😀</p>
<p style="text-align: center">centred</p>
<p style="text-align: justify; margin-left: 36pt; text-indent: -18pt">justified</p>
<p>line<br>break and {braces} \ </p>
</body></html>)",
        "html");
    // A line break within a paragraph is U+2028.
    EXPECT_TRUE(text.string().startsWith(
        QStringLiteral("plain bold italic Gr\u00FC\u00DFe \u4E2D\u6587 \U0001F600\ncentred\n"
                       "justified\nline\u2028break and {braces} \\")))
        << text.string().toStdString();
    EXPECT_EQ(fontOf(text, QStringLiteral("plain")).family, QStringLiteral("DejaVu Serif"));
    EXPECT_EQ(fontOf(text, QStringLiteral("plain")).pointSize, 15);
    EXPECT_EQ(fontOf(text, QStringLiteral("plain")).weight, 400);
    EXPECT_EQ(fontOf(text, QStringLiteral("bold")).weight, 700);
    EXPECT_EQ(fontOf(text, QStringLiteral("italic")).slant, FontSlant::Italic);
    EXPECT_EQ(attributesOf(text, QStringLiteral("centred")).paragraphStyle.alignment, TextAlignment::Center);
    const ParagraphStyle justified = attributesOf(text, QStringLiteral("justified")).paragraphStyle;
    EXPECT_EQ(justified.alignment, TextAlignment::Justified);
    EXPECT_NEAR(justified.headIndent, 36, nearly);
    EXPECT_NEAR(justified.firstLineHeadIndent, 18, nearly);
}

TEST_F(Office, WritesItsOwnDocumentsAsReadableRtf)
{
    const AttributedString text = fromRtf(R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
    xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
    xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
    xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
    office:version="1.3" office:mimetype="application/vnd.oasis.opendocument.text">
<office:automatic-styles>
<style:style style:name="tabs" style:family="paragraph"><style:paragraph-properties fo:text-align="end"
    fo:margin-top="10pt" fo:margin-bottom="20pt"><style:tab-stops><style:tab-stop style:position="72pt"/>
    <style:tab-stop style:position="144pt" style:type="right"/></style:tab-stops></style:paragraph-properties></style:style>
<style:style style:name="german" style:family="text"><style:text-properties fo:language="de" fo:country="DE"
    fo:font-size="9pt" fo:font-weight="bold" fo:letter-spacing="2pt"/></style:style>
</office:automatic-styles>
<office:body><office:text>
<text:p text:style-name="tabs">one<text:tab/>two <text:span text:style-name="german">drei</text:span></text:p>
<text:p>four<text:note text:note-class="footnote"><text:note-citation>1</text:note-citation><text:note-body>
<text:p>noted</text:p></text:note-body></text:note> five</text:p>
</office:text></office:body></office:document>)",
        "fodt");
    EXPECT_TRUE(text.string().startsWith(QStringLiteral("one\ttwo drei\nfour")))
        << text.string().toStdString();
    EXPECT_TRUE(text.string().contains(QStringLiteral("noted"))) << text.string().toStdString();
    const ParagraphStyle style = attributesOf(text, QStringLiteral("one")).paragraphStyle;
    EXPECT_EQ(style.alignment, TextAlignment::Right);
    EXPECT_NEAR(style.paragraphSpacingBefore, 10, nearly);
    EXPECT_NEAR(style.paragraphSpacing, 20, nearly);
    ASSERT_EQ(style.tabStops.size(), 2U);
    EXPECT_NEAR(style.tabStops[0].position, 72, nearly);
    EXPECT_NEAR(style.tabStops[1].position, 144, nearly);
    EXPECT_EQ(style.tabStops[1].alignment, TabAlignment::Right);
    EXPECT_EQ(attributesOf(text, QStringLiteral("drei")).language, QStringLiteral("de-DE"));
    EXPECT_EQ(fontOf(text, QStringLiteral("drei")).pointSize, 9);
    EXPECT_EQ(fontOf(text, QStringLiteral("drei")).weight, 700);
    EXPECT_NEAR(fontOf(text, QStringLiteral("drei")).tracking, 2, nearly);
}
