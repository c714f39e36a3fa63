// SPDX-License-Identifier: MIT
#include "platform/segmentation/Paragraphs.h"

#include "tests/harness/EveryInstructionSet.h"
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

class ParagraphsOfEveryTarget : public EveryInstructionSet { };

} // namespace

TEST_P(ParagraphsOfEveryTarget, EndAtASeparatorWhereverItIs)
{
    // Neighbours of the separators in one byte or the other.
    const QString others = QStringLiteral("\u000Bx\u202A\u0A0A\u0D0D\u200A\u2920");
    for (const char16_t separator : {u'\n', u'\r', u'\u2029'}) {
        for (qsizetype length = 0; length < 150; ++length) {
            QString text = others.repeated(length / others.size() + 1).first(length);
            EXPECT_EQ(paragraphAt(text, 0).length, length);
            text += QChar(separator);
            text += others.repeated(length % 3 * 9);
            const Paragraph paragraph = paragraphAt(text, length / 2);
            EXPECT_EQ(paragraph.contentLength, length - length / 2) << length;
            EXPECT_EQ(paragraph.length, length - length / 2 + 1) << length;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    AllTargets, ParagraphsOfEveryTarget, EveryInstructionSet::values(), EveryInstructionSet::name);

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
