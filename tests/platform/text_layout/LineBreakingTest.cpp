// SPDX-License-Identifier: MIT
#include "platform/text_layout/LayoutEngine.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/text_layout/FontWorld.h"

namespace {

class LineBreaking : public QuillbayTest {
protected:
    void SetUp() override
    {
        useOnlyFonts({QStringLiteral("NimbusMonoPS-Regular.otf"), QStringLiteral("NimbusSans-Regular.otf")});
    }

    // In Courier every character is 0.6 em wide: 6 points at 10 points, so that columns count characters.
    static AttributedString makeCourierText(const QString &text, const ParagraphStyle &style = {})
    {
        TextAttributes attributes;
        attributes.font = FontAttributes{.family = QStringLiteral("Courier"), .pointSize = 10};
        attributes.paragraphStyle = style;
        return AttributedString(text, attributes);
    }

    static double columns(int count) { return 6.0 * count; }

    QStringList linesOf(const AttributedString &text, double width)
    {
        LayoutEngine engine;
        QStringList lines;
        forEachParagraph(text.string(), [&](const Paragraph &paragraph) {
            engine.layOutParagraph(text, paragraph, width,
                [&](const LineFragment &line) { lines.append(text.string().mid(line.start, line.length)); });
        });
        EXPECT_EQ(engine.countLines(text, width), static_cast<quint64>(lines.size()));
        EXPECT_EQ(lines.join(QString()), text.string());
        return lines;
    }

    QStringList linesOf(const QString &text, int count)
    {
        return linesOf(makeCourierText(text), columns(count));
    }

    static quint64 count(const QString &text, int columnCount)
    {
        return LayoutEngine().countLines(makeCourierText(text), columns(columnCount));
    }
};

TEST_F(LineBreaking, CountsEveryLineEndButNoEmptyLineBehindTheLast)
{
    EXPECT_EQ(count(QString(), 10), 0U);
    EXPECT_EQ(count(QStringLiteral("a"), 10), 1U);
    EXPECT_EQ(count(QStringLiteral("a\n"), 10), 1U);
    EXPECT_EQ(count(QStringLiteral("\n\n"), 10), 2U);
    EXPECT_EQ(count(QStringLiteral("a\nb"), 10), 2U);
    EXPECT_EQ(count(QStringLiteral("\r\n\r\n"), 10), 2U);
    EXPECT_EQ(count(QStringLiteral("\r\r\n"), 10), 2U);
    EXPECT_EQ(count(QStringLiteral("a\u2029b\u2029"), 10), 2U);
}

TEST_F(LineBreaking, EndsALineAtForcedBreaksWithinAParagraph)
{
    const QStringList expected{QStringLiteral("a\u2028"), QStringLiteral("b\u000B"),
        QStringLiteral("c\u000C"), QStringLiteral("d\u0085"), QStringLiteral("\u2028"), QStringLiteral("\n"),
        QStringLiteral("e\u2028")};
    EXPECT_EQ(linesOf(expected.join(QString()), 10), expected);
}

TEST_F(LineBreaking, BreaksBetweenWordsAndLetsBlanksHang)
{
    EXPECT_EQ(linesOf(QStringLiteral("aaa bbb ccc"), 7),
        (QStringList{QStringLiteral("aaa bbb "), QStringLiteral("ccc")}));
    EXPECT_EQ(linesOf(QStringLiteral("aaa bbb ccc"), 6),
        (QStringList{QStringLiteral("aaa "), QStringLiteral("bbb "), QStringLiteral("ccc")}));
    EXPECT_EQ(linesOf(QStringLiteral("aaa bbb") + QString(50, u' ') + QStringLiteral("ccc"), 7),
        (QStringList{QStringLiteral("aaa bbb") + QString(50, u' '), QStringLiteral("ccc")}));
    EXPECT_EQ(linesOf(QString(500, u' '), 7).size(), 1);
}

TEST_F(LineBreaking, FitsTextThatIsExactlyAsWideAsTheColumn)
{
    EXPECT_EQ(count(QString(77, u'x'), 77), 1U);
    EXPECT_EQ(count(QString(77, u'x'), 76), 2U);
}

TEST_F(LineBreaking, FitsTextAsWideAsTheColumnButForTheRoundingOfSums)
{
    TextAttributes attributes;
    attributes.font = FontAttributes{.family = QStringLiteral("Courier"), .pointSize = 7.3};
    for (int length = 2; length < 200; ++length) {
        const AttributedString text(QString(length, u'x'), attributes);
        EXPECT_EQ(LayoutEngine().countLines(text, length * 7.3 * 0.6), 1U) << length;
    }
}

TEST_F(LineBreaking, BreaksAWordWiderThanTheColumnBetweenGraphemes)
{
    EXPECT_EQ(linesOf(QStringLiteral("a wonderful x"), 4),
        (QStringList{
            QStringLiteral("a "), QStringLiteral("wond"), QStringLiteral("erfu"), QStringLiteral("l x")}));
    EXPECT_EQ(linesOf(QStringLiteral("e\u0301e\u0301e\u0301"), 2),
        (QStringList{QStringLiteral("e\u0301e\u0301"), QStringLiteral("e\u0301")}));
}

TEST_F(LineBreaking, GivesEveryGraphemeALineWithoutSpace)
{
    EXPECT_EQ(linesOf(QStringLiteral("ab  c\u0301\t\td"), 0),
        (QStringList{QStringLiteral("a"), QStringLiteral("b  "), QStringLiteral("c\u0301\t"),
            QStringLiteral("\t"), QStringLiteral("d")}));
    EXPECT_EQ(linesOf(QStringLiteral("a\u2028b\nc"), 0),
        (QStringList{QStringLiteral("a\u2028"), QStringLiteral("b\n"), QStringLiteral("c")}));
}

TEST_F(LineBreaking, BreaksBehindHyphensAndShowsASoftHyphenWhereItFits)
{
    EXPECT_EQ(linesOf(QStringLiteral("well-known"), 6),
        (QStringList{QStringLiteral("well-"), QStringLiteral("known")}));
    EXPECT_EQ(linesOf(QStringLiteral("x over\u00ADland"), 7),
        (QStringList{QStringLiteral("x over\u00AD"), QStringLiteral("land")}));
    EXPECT_EQ(linesOf(QStringLiteral("x over\u00ADland"), 6),
        (QStringList{QStringLiteral("x "), QStringLiteral("over\u00AD"), QStringLiteral("land")}));
    EXPECT_EQ(count(QStringLiteral("over\u00ADland"), 8), 1U);
}

TEST_F(LineBreaking, KeepsTextTogetherAroundNoBreakSpaces)
{
    EXPECT_EQ(linesOf(QStringLiteral("aa 10\u00A0km"), 6),
        (QStringList{QStringLiteral("aa "), QStringLiteral("10\u00A0km")}));
}

TEST_F(LineBreaking, TakesNoRoomForControlsAndAFixedBoxForAttachments)
{
    EXPECT_EQ(count(QStringLiteral("aaaa\u0001\u0002\u200Baaaa"), 8), 1U);
    const QString two(2, attachmentCharacter);
    EXPECT_EQ(LayoutEngine().countLines(makeCourierText(two), 2 * attachmentAdvance), 1U);
    EXPECT_EQ(LayoutEngine().countLines(makeCourierText(two), 2 * attachmentAdvance - 1), 2U);
}

TEST_F(LineBreaking, SetsTextThatNamesNoFontInHelveticaOfTwelvePoints)
{
    // A digit is 556 of 1000 units wide in Helvetica and its substitutes.
    const AttributedString text(QString(10, u'0'));
    EXPECT_EQ(LayoutEngine().countLines(text, 10 * 12 * 0.556), 1U);
    EXPECT_EQ(LayoutEngine().countLines(text, 10 * 12 * 0.556 - 0.01), 2U);
}

TEST_F(LineBreaking, AddsTrackingToEveryGrapheme)
{
    TextAttributes attributes;
    attributes.font = FontAttributes{.family = QStringLiteral("Courier"), .pointSize = 10, .tracking = 2};
    const AttributedString text(QStringLiteral("e\u0301abc"), attributes);
    EXPECT_EQ(LayoutEngine().countLines(text, 4 * 8), 1U);
    EXPECT_EQ(LayoutEngine().countLines(text, 4 * 8 - 0.01), 2U);
}

TEST_F(LineBreaking, SumsUpOverPartsOfTheText)
{
    const AttributedString text = makeCourierText(QStringLiteral("aaa bbb\nccc ddd eee\n\nfff"));
    LayoutEngine engine;
    EXPECT_EQ(engine.countLines(text, columns(4)), 7U);
    EXPECT_EQ(engine.countLines(text, columns(4), 0, 8), 2U);
    EXPECT_EQ(engine.countLines(text, columns(4), 8, 20), 3U);
    EXPECT_EQ(engine.countLines(text, columns(4), 20, text.length()), 2U);
}

// Widths in font units: 1000 or 2048 per em.
class LineEnds : public LineBreaking {
protected:
    static std::vector<LineFragment> linesOf(
        const QString &family, double pointSize, const QString &text, double width)
    {
        TextAttributes attributes;
        attributes.font = FontAttributes{.family = family, .pointSize = pointSize};
        const AttributedString styled(text, attributes);
        std::vector<LineFragment> lines;
        LayoutEngine().layOutParagraph(
            styled, paragraphAt(text, 0), width, [&](const LineFragment &line) { lines.push_back(line); });
        return lines;
    }

    static double widthOf(const QString &family, double pointSize, const QString &text)
    {
        return linesOf(family, pointSize, text, 1e6).front().width;
    }
};

TEST_F(LineEnds, KerningCounts)
{
    const QString helvetica = QStringLiteral("Helvetica");
    EXPECT_DOUBLE_EQ(widthOf(helvetica, 1000, QStringLiteral("A")), 667);
    EXPECT_LT(widthOf(helvetica, 1000, QStringLiteral("AV")), 667 + 667);
    EXPECT_DOUBLE_EQ(widthOf(helvetica, 1000, QStringLiteral("A ")), 667) << "blanks at the end hang";
}

TEST_F(LineEnds, TearAKerningPairApart)
{
    const QString helvetica = QStringLiteral("Helvetica");
    const QString text = QStringLiteral("aaa bb-YY");
    // In the text the hyphen is kerned by 90 units towards the Y; at a line's end it needs its whole advance.
    const double apart = widthOf(helvetica, 1000, QStringLiteral("aaa bb-"));
    ASSERT_DOUBLE_EQ(widthOf(helvetica, 1000, QStringLiteral("-Y")), 333 + 667 - 90);
    const std::vector<LineFragment> wide = linesOf(helvetica, 1000, text, apart);
    ASSERT_EQ(wide.size(), 2U);
    EXPECT_EQ(wide[0].length, 7);
    EXPECT_DOUBLE_EQ(wide[0].width, apart);
    const std::vector<LineFragment> narrow = linesOf(helvetica, 1000, text, apart - 1);
    EXPECT_EQ(narrow[0].length, 4) << "it fits only as long as the Y follows";
}

TEST_F(LineEnds, SplitALigature)
{
    useOnlyFonts({QStringLiteral("DejaVuSans.ttf")});
    const QString dejaVu = QStringLiteral("DejaVu Sans");
    const auto width = [&](const char16_t *text) { return widthOf(dejaVu, 2048, QString::fromUtf16(text)); };
    ASSERT_NE(width(u"ffi"), width(u"f") + width(u"fi")) << "the three letters are one glyph";
    const std::vector<LineFragment> lines =
        linesOf(dejaVu, 2048, QStringLiteral("of\u00ADfice"), width(u"of\u2010"));
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(lines[0].length, 3);
    EXPECT_DOUBLE_EQ(lines[0].width, width(u"of\u2010"));
    const std::vector<LineFragment> second =
        linesOf(dejaVu, 2048, QStringLiteral("of\u00ADfice"), width(u"fice"));
    ASSERT_EQ(second.size(), 2U);
    EXPECT_DOUBLE_EQ(second[1].width, width(u"fice"));
}

TEST_F(LineEnds, DivideALigatureWhereAWordIsBroken)
{
    useOnlyFonts({QStringLiteral("DejaVuSans.ttf")});
    const QString dejaVu = QStringLiteral("DejaVu Sans");
    const double ligature = widthOf(dejaVu, 2048, QStringLiteral("ffi"));
    const std::vector<LineFragment> lines = linesOf(dejaVu, 2048, QStringLiteral("ffi"), ligature * 2 / 3);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].length, 2);
    EXPECT_NEAR(lines[1].width, ligature / 3, 0.001);
}

} // namespace
