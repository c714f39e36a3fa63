// SPDX-License-Identifier: MIT
// Malicious and extreme documents: every one has a count after a short time.
#include "platform/text_layout/LayoutEngine.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/text_layout/FontWorld.h"

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::nan("");
const double absurdNumbers[]{0, -1, -1e300, 1e300, 1e-300, infinity, -infinity, notANumber};

class Bounds : public QuillbayTest {
protected:
    void SetUp() override
    {
        useOnlyFonts({QStringLiteral("NimbusSans-Regular.otf"), QStringLiteral("NotoNaskhArabic-Regular.ttf"),
            QStringLiteral("NotoSansThai-Regular.ttf"), QStringLiteral("NotoSansCJK-Regular.ttc")});
    }

    static AttributedString makeText(const QString &text, const ParagraphStyle &style)
    {
        TextAttributes attributes;
        attributes.paragraphStyle = style;
        return AttributedString(text, attributes);
    }

    static quint64 count(const QString &text, double width)
    {
        return LayoutEngine().countLines(AttributedString(text), width);
    }
};

TEST_F(Bounds, HasACountForEveryColumnWidth)
{
    const QString text = QStringLiteral("some words\tand a tab");
    for (const double width : absurdNumbers)
        EXPECT_GE(count(text, width), 1U) << width;
    EXPECT_EQ(count(text, infinity), 1U);
    EXPECT_EQ(count(text, 1e300), 1U);
    EXPECT_EQ(count(text, -5), count(text, 0));
    EXPECT_EQ(count(text, notANumber), count(text, 0));
}

TEST_F(Bounds, HasACountForEveryNumberOfAParagraphStyle)
{
    for (const double number : absurdNumbers) {
        ParagraphStyle style;
        for (double *member :
            {&style.firstLineHeadIndent, &style.headIndent, &style.tailIndent, &style.defaultTabInterval,
                &style.lineSpacing, &style.paragraphSpacing, &style.paragraphSpacingBefore}) {
            style = {};
            *member = number;
            const AttributedString text = makeText(QStringLiteral("some words\tand\ttabs"), style);
            const quint64 lines = LayoutEngine().countLines(text, 200);
            EXPECT_GE(lines, 1U) << number;
            EXPECT_LE(lines, 19U) << number;
        }
        style = {};
        for (const TabAlignment alignment :
            {TabAlignment::Left, TabAlignment::Center, TabAlignment::Right, TabAlignment::Decimal})
            style.tabStops.push_back({number, alignment});
        const AttributedString text = makeText(QStringLiteral("some words\tand\ttabs\t1.5"), style);
        EXPECT_GE(LayoutEngine().countLines(text, 200), 1U) << number;
    }
}

TEST_F(Bounds, HasACountForEveryNumberOfAFont)
{
    for (const double number : {0.0, -1.0, 1e9, 1e300, 1e-300, infinity, notANumber}) {
        TextAttributes size;
        size.font = FontAttributes{.family = QStringLiteral("Helvetica"), .pointSize = number};
        EXPECT_GE(LayoutEngine().countLines(AttributedString(QStringLiteral("some words"), size), 200), 1U)
            << number;
        TextAttributes tracking;
        tracking.font = FontAttributes{
            .family = QStringLiteral("Helvetica"), .tracking = number, .baselineOffset = number};
        EXPECT_GE(
            LayoutEngine().countLines(AttributedString(QStringLiteral("some words"), tracking), 200), 1U)
            << number;
    }
    for (const int weight : {INT_MIN, 0, INT_MAX}) {
        TextAttributes attributes;
        attributes.font = FontAttributes{.family = QString(100'000, u'x'), .weight = weight};
        EXPECT_EQ(LayoutEngine().countLines(AttributedString(QStringLiteral("word"), attributes), 200), 1U);
    }
}

TEST_F(Bounds, TakesASizeOfZeroForTheUsualOne)
{
    TextAttributes attributes;
    attributes.font = FontAttributes{.family = QStringLiteral("Helvetica"), .pointSize = 0};
    const QString text = QStringLiteral("words and more words ").repeated(20);
    EXPECT_EQ(LayoutEngine().countLines(AttributedString(text, attributes), 300), count(text, 300));
}

TEST_F(Bounds, FurtherMarksOnALetterTakeNoRoom)
{
    const auto withMarks = [](int number, char16_t mark) {
        QString text;
        for (const QChar letter : QStringLiteral("letters in a column"))
            text += letter == u' ' ? QString(letter) : letter + QString(number, mark);
        return text;
    };
    for (const char16_t mark : {u'\u0301', u'\u0316', u'\u200D'}) {
        for (const double width : {0.0, 30.0, 90.0, 1000.0}) {
            const quint64 lines = count(withMarks(1, mark), width);
            for (const int marks : {30, 31, 32, 33, 64, 1000})
                EXPECT_EQ(count(withMarks(marks, mark), width), lines)
                    << marks << " of " << static_cast<int>(mark);
        }
    }
}

// Each of these would take minutes if the time grew with the square of the length.
TEST_F(Bounds, CountsHugeTextsOfEveryShape)
{
    constexpr int size = 400'000;
    EXPECT_EQ(count(QString(5'000'000, u'\n'), 451), 5'000'000U);
    EXPECT_EQ(count(QString(size, u' '), 451), 1U);
    EXPECT_GT(count(QString(size, u'x'), 451), 1000U);
    EXPECT_EQ(count(QString(size, u'x'), 0), static_cast<quint64>(size));
    EXPECT_EQ(count(QString(size, u'x'), 1e9), 1U);
    EXPECT_GT(count(QString(size, u'\t'), 451), 1000U);
    for (const char16_t mark : {u'\u0301', u'\u064E', u'\u0E49', u'\u05B0', u'\u200D'})
        EXPECT_EQ(count(QString(qsizetype{10} * size, mark), 451), 1U);
    EXPECT_EQ(count(QString(size, u'\u0001'), 451), 1U);
    EXPECT_EQ(count(QString(size, u'\u00AD'), 451), 1U);
    EXPECT_GT(count(QString(size, u'\uFFFC'), 451), 1000U);
    EXPECT_EQ(count(QString(size, u'\u2028'), 451), static_cast<quint64>(size));
    EXPECT_GT(count(QString(size, QChar(0xD800)), 451), 1000U);
    EXPECT_GT(count(QStringLiteral("word ").repeated(size / 5), 451), 1000U);
    EXPECT_GT(count(QStringLiteral("well-").repeated(size / 5), 451), 1000U);
    EXPECT_GT(count(QStringLiteral("a\u0416").repeated(size / 2), 451), 1000U) << "a run a letter";
}

TEST_F(Bounds, CountsHugeWordsOfEveryScript)
{
    constexpr int size = 100'000;
    for (const double width : {0.0, 3.0, 451.0}) {
        EXPECT_GT(count(QString(size, u'\u0628'), width), 100U) << "Arabic letters that join";
        EXPECT_GT(count(QStringLiteral("ภาษาไทย").repeated(size / 7), width), 100U);
        EXPECT_GT(count(QString(size, u'\u6F22'), width), 100U);
        EXPECT_GT(count(QStringLiteral("a\u05D0").repeated(size / 2), width), 100U) << "a direction a letter";
    }
}

TEST_F(Bounds, CountsRunsOfOneCharacterEach)
{
    AttributedStringBuilder builder;
    TextAttributes attributes;
    for (int i = 0; i < 100'000; ++i) {
        attributes.font =
            FontAttributes{.family = QStringLiteral("Font %1").arg(i % 5000), .pointSize = 8.0 + i % 3};
        attributes.language = QStringLiteral("x%1").arg(i % 7000);
        builder.append(i % 7 ? u"x" : u" ", attributes);
    }
    EXPECT_GT(LayoutEngine().countLines(builder.build(), 451), 100U);
}

} // namespace
