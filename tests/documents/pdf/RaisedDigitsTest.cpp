// SPDX-License-Identifier: MIT
// Raised digits as typesetting programs draw them: smaller, above the line, and the line continues after
// them.
#include "tests/documents/pdf/PdfWriter.h"
#include "tests/documents/pdf/ReadPdf.h"
#include "tests/harness/QuillbayTest.h"

namespace {

QString textOf(const QByteArrayList &pages)
{
    const auto text = readPdf(PdfWriter{.pages = pages, .arePagesDrawn = true}.bytes());
    return text ? text.value().string() : causeText(text.error());
}

QByteArray line(const QByteArray &operators)
{
    return "BT /F1 12 Tf 72 720 Td 14 TL " + operators + " ET\n";
}

QByteArray raised(const QByteArray &digits, int points = 4)
{
    return "/F1 7 Tf " + QByteArray::number(points) + " Ts (" + digits + ") Tj 0 Ts /F1 12 Tf ";
}

} // namespace

TEST(PdfRaisedDigits, StayInTheirLine)
{
    for (int points = 3; points <= 8; ++points)
        EXPECT_EQ(textOf({line("(25 m) Tj " + raised("2", points) + "( of land) Tj")}),
            QStringLiteral("25 m2 of land\r\n"))
            << points;
}

TEST(PdfRaisedDigits, StayInTheirWord)
{
    EXPECT_EQ(textOf({line("(x) Tj " + raised("2", 6) + "(y) Tj " + raised("10", 6) + "(z.) Tj")}),
        QStringLiteral("x2y10z.\r\n"));
    EXPECT_EQ(textOf({line("(word) Tj " + raised("12") + "(, and another) Tj " + raised("3") + "(.) Tj")}),
        QStringLiteral("word12, and another3.\r\n"));
}

TEST(PdfRaisedDigits, EndAWordBeforeASpaceThatIsOnlyAGap)
{
    EXPECT_EQ(textOf({line("(area 25 m) Tj " + raised("2") + "ET BT /F1 12 Tf 138 720 Td (of land) Tj")}),
        QStringLiteral("area 25 m2 of land\r\n"));
}

TEST(PdfRaisedDigits, EndALineThatEndsWithThem)
{
    EXPECT_EQ(textOf({line("(25 m) Tj " + raised("2") + "T* (more) Tj T* (7 m) Tj " + raised("3"))}),
        QStringLiteral("25 m2\r\nmore\r\n7 m3\r\n"));
}

TEST(PdfRaisedDigits, LeaveLinesAloneThatBeginOrEndWithOrdinaryDigits)
{
    EXPECT_EQ(textOf({line("(Chapter) Tj T* (2 begins on page 12) Tj T* (3 on 14) Tj T* (25 m) Tj "
                  + raised("2") + "( each) Tj T* (2) Tj T* (end) Tj")}),
        QStringLiteral("Chapter\r\n2 begins on page 12\r\n3 on 14\r\n25 m2 each\r\n2\r\nend\r\n"));
}

TEST(PdfRaisedDigits, StayInTheirLineOnEveryPage)
{
    const QByteArray page = line("(10) Tj " + raised("6") + "( grains) Tj");
    EXPECT_EQ(textOf({page, line("(2) Tj"), page}), QStringLiteral("106 grains\r\n2\r\n106 grains\r\n"));
}

TEST(PdfRaisedDigits, OnAPageWithTooManyOfThemAreReadInTime)
{
    QByteArray page;
    for (int i = 0; i < 3'000; ++i)
        page += "(x) Tj " + raised("2") + "T* ";
    const QString text = textOf({line(page)});
    EXPECT_EQ(text.count(u'x'), 3'000);
    EXPECT_EQ(text.count(u'2'), 3'000);
}
