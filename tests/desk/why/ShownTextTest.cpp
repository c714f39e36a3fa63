// SPDX-License-Identifier: MIT
#include "desk/why/ShownText.h"

#include "tests/harness/QuillbayTest.h"

#include <QTextDocument>

#include <random>

TEST(ShownText, HasALineForEveryLineOfTheText)
{
    EXPECT_EQ(ShownText(QStringLiteral("a\r\nb\rc\n\nd\u2028e\u2029f")).string(),
        QStringLiteral("a\nb\nc\n\nd\ne\nf"));
    EXPECT_EQ(ShownText(QString()).string(), QString());
    EXPECT_EQ(ShownText(QStringLiteral("a\n")).string(), QStringLiteral("a\n"));
    EXPECT_EQ(ShownText(QStringLiteral("\n")).string(), QStringLiteral("\n"));
}

TEST(ShownText, CutsLongLinesButNoCharacters)
{
    QString text(ShownText::maxLineLength - 1, u'a');
    text += QStringLiteral("\U0001F600b");
    const ShownText shown(text);
    EXPECT_EQ(shown.string().indexOf(u'\n'), ShownText::maxLineLength - 1);
    EXPECT_EQ(shown.toShown(text.size()), shown.string().size());
    EXPECT_EQ(shown.toShown(ShownText::maxLineLength), ShownText::maxLineLength + 1);
}

// What the view would take for a frame, an object or a line end of its own would shift all positions.
TEST(ShownText, IsWhatATextDocumentHolds)
{
    std::mt19937 random(5);
    const QString units = QStringLiteral("ab \t\r\n\u2028\u2029\uFDD0\uFDD1\uFFFC\u0085\f\v\u00AD") + QChar(0)
        + QChar(0xD83D) + QChar(0xDE00);
    for (int round = 0; round < 300; ++round) {
        QString text;
        for (int i = 0; i < round % 40; ++i)
            text += units[static_cast<qsizetype>(random() % static_cast<size_t>(units.size()))];
        const ShownText shown(text);
        QTextDocument document;
        document.setPlainText(shown.string());
        ASSERT_EQ(document.toPlainText(), shown.string()) << text.toUtf8().toHex().toStdString();
        for (qsizetype position = 0; position <= text.size(); ++position) {
            const qsizetype there = shown.toShown(position);
            ASSERT_LE(there, shown.string().size());
            const qsizetype back = shown.fromShown(there);
            const bool isWithinLineEnd = text.mid(position - 1, 2) == QStringLiteral("\r\n");
            ASSERT_EQ(back, isWithinLineEnd ? position - 1 : position);
        }
    }
}
