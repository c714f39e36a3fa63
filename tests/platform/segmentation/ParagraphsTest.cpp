// SPDX-License-Identifier: MIT
#include "platform/segmentation/Paragraphs.h"

#include "tests/harness/QuillbayTest.h"

#include <QStringList>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

QStringList contents(const QString &text)
{
    QStringList list;
    forEachParagraph(
        text, [&](const Paragraph &paragraph) { list.append(paragraph.content(text).toString()); });
    return list;
}

} // namespace

TEST(Paragraphs, AnEmptyTextHasNone)
{
    EXPECT_THAT(contents(QString()), IsEmpty());
}

TEST(Paragraphs, EndAtLineFeedCarriageReturnTheirPairAndParagraphSeparator)
{
    EXPECT_THAT(contents(QStringLiteral("a\nb\rc\r\nd\u2029e")),
        ElementsAre(QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d"),
            QStringLiteral("e")));
}

TEST(Paragraphs, DoNotEndAtLineSeparatorVerticalTabFormFeedOrNextLine)
{
    EXPECT_THAT(contents(QStringLiteral("a\u2028b\u000Bc\u000Cd\u0085e")),
        ElementsAre(QStringLiteral("a\u2028b\u000Bc\u000Cd\u0085e")));
}

TEST(Paragraphs, AnEmptyLineIsAnEmptyParagraphAndNothingFollowsTheLastSeparator)
{
    EXPECT_THAT(contents(QStringLiteral("\n\na\n")), ElementsAre(QString(), QString(), QStringLiteral("a")));
    EXPECT_THAT(contents(QStringLiteral("\n\r")), ElementsAre(QString(), QString()));
    EXPECT_THAT(contents(QStringLiteral("\r\r\n")), ElementsAre(QString(), QString()));
}

TEST(Paragraphs, CoverTheTextWithoutGaps)
{
    const QString text = QStringLiteral("one\r\ntwo\n\nthree\r");
    qsizetype end = 0;
    forEachParagraph(text, [&](const Paragraph &paragraph) {
        EXPECT_EQ(paragraph.start, end);
        EXPECT_GE(paragraph.length, paragraph.contentLength);
        end = paragraph.end();
    });
    EXPECT_EQ(end, text.size());
}

TEST(Paragraphs, LineEndsAreTheParagraphSeparatorsAndTheLineSeparator)
{
    QString found;
    for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
        if (isLineEnd(static_cast<char16_t>(unit)))
            found += QChar(static_cast<char16_t>(unit));
    }
    EXPECT_EQ(found, QStringLiteral("\n\r\u2028\u2029"));
}
