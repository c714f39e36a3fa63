// SPDX-License-Identifier: MIT
#include "text_statistics/ParagraphMemory.h"

#include "tests/harness/QuillbayTest.h"
#include "text_statistics/ColumnCounter.h"
#include "text_statistics/MeasuringSurface.h"
#include "text_statistics/WordCounterModel.h"

namespace {

/// Different in every line.
QString lines(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += QStringLiteral("Line %1 has %2 words or more. ").arg(i).arg(i * 7919 % 1000)
            + QStringLiteral("word ").repeated(i % 23) + QChar(u'\n');
    return text;
}

TextRules rulesIn(const QString &locale = QStringLiteral("en_US"))
{
    return {.localeIdentifier = [locale] { return locale; }};
}

AttributedString styled(const QString &text, double pointSize)
{
    TextAttributes attributes;
    attributes.font = FontAttributes{.family = QStringLiteral("Helvetica"), .pointSize = pointSize};
    return AttributedString(text, attributes);
}

} // namespace

class ParagraphMemoryTest : public QuillbayTest {
protected:
    /// The code units that are counted when the text is counted once more. Every count is the length.
    qsizetype countedOf(
        const AttributedString &text, const TextRules &rules = rulesIn(), double columnWidth = 400)
    {
        qsizetype counted = 0;
        const QBYWordCounterStats sum =
            m_memory.count(text, rules, columnWidth, [&](std::span<CountedPiece> pieces) {
                for (CountedPiece &piece : pieces) {
                    counted += piece.end - piece.start;
                    const auto length = static_cast<quint64>(piece.end - piece.start);
                    piece.counts = {length, length, length, length, length, length, length, length};
                }
            });
        const auto length = static_cast<quint64>(text.length());
        EXPECT_EQ(sum, (QBYWordCounterStats{length, length, length, length, length, length, length, length}));
        return counted;
    }
    qsizetype countedOf(const QString &text) { return countedOf(AttributedString(text)); }

    ParagraphMemory m_memory;
};

TEST_F(ParagraphMemoryTest, AKnownTextIsNotCountedAgain)
{
    const QString text = lines(5000);
    EXPECT_EQ(countedOf(text), text.size());
    EXPECT_EQ(countedOf(text), 0);
    EXPECT_EQ(countedOf(QString()), 0);
}

TEST_F(ParagraphMemoryTest, ReadsNothingBehindTheNameOfTheLocale)
{
    const QString text = lines(50);
    for (const QStringView memory :
        {u"en_US, and what follows in memory", u"en_US; and something else there"}) {
        const TextRules rules = rulesIn(QString::fromRawData(memory.constData(), 5));
        EXPECT_EQ(countedOf(AttributedString(text), rules), memory[5] == u',' ? text.size() : 0);
    }
}

TEST_F(ParagraphMemoryTest, AnEditCostsAFewPiecesWhereverItIs)
{
    const QString text = lines(5000);
    countedOf(text);
    for (const double where : {0.0, 0.3, 0.5, 0.99}) {
        QString inserted = text;
        inserted.insert(
            static_cast<qsizetype>(static_cast<double>(text.size()) * where), QStringLiteral("new\nand"));
        EXPECT_LT(countedOf(inserted), 4 * ParagraphMemory::maxPieceLength) << where;
        QString removed = text;
        removed.remove(static_cast<qsizetype>(static_cast<double>(text.size()) * where), 200);
        EXPECT_LT(countedOf(removed), 4 * ParagraphMemory::maxPieceLength) << where;
    }
    EXPECT_LT(countedOf(text + QStringLiteral("The end.")), 4 * ParagraphMemory::maxPieceLength);
}

TEST_F(ParagraphMemoryTest, AChangeOfStyleOrRulesIsCounted)
{
    const QString text = lines(100);
    const qsizetype length = text.size();
    countedOf(styled(text, 12));
    EXPECT_EQ(countedOf(styled(text, 12)), 0);
    EXPECT_EQ(countedOf(styled(text, 13)), length);
    EXPECT_EQ(countedOf(styled(text, 12), rulesIn(QStringLiteral("en_GB"))), length);
    EXPECT_EQ(countedOf(styled(text, 12), rulesIn(), 401), length);
    TextRules rules = rulesIn();
    rules.minimumSentencesOfParagraph = 1;
    EXPECT_EQ(countedOf(styled(text, 12), rules), length);
    rules = rulesIn();
    rules.sentencesNeedTerminalPunctuation = true;
    EXPECT_EQ(countedOf(styled(text, 12), rules), length);
    EXPECT_EQ(countedOf(styled(text, 12)), 0);
}

TEST_F(ParagraphMemoryTest, WhereAStyleBeginsIsPartOfAParagraph)
{
    const auto withBold = [](qsizetype from, qsizetype to) {
        const QString text = QStringLiteral("one two three\n");
        TextAttributes bold;
        bold.font = FontAttributes{.family = QStringLiteral("Helvetica"), .weight = boldFontWeight};
        AttributedStringBuilder builder;
        builder.append(QStringView(text).first(from), {});
        builder.append(QStringView(text).sliced(from, to - from), bold);
        builder.append(QStringView(text).sliced(to), {});
        return builder.build();
    };
    countedOf(withBold(0, 3));
    EXPECT_EQ(countedOf(withBold(0, 3)), 0);
    EXPECT_EQ(countedOf(withBold(4, 7)), 14);
    EXPECT_EQ(countedOf(withBold(0, 4)), 14);
    EXPECT_EQ(countedOf(withBold(0, 14)), 14);
}

TEST_F(ParagraphMemoryTest, RunsThatEndWithAPieceOrReachOverMany)
{
    AttributedStringBuilder builder;
    for (int i = 0; i < 300; ++i)
        builder.append(styled(lines(i % 7 + 1), i % 3 == 0 ? 12 : 10 + i % 5));
    const AttributedString text = builder.build();
    EXPECT_EQ(countedOf(text), text.length());
    EXPECT_EQ(countedOf(text), 0);
}

TEST_F(ParagraphMemoryTest, ManyStylesAreForgotten)
{
    const AttributedString first = styled(lines(10), 12);
    countedOf(first);
    for (int i = 0; i < 3000; ++i) {
        TextAttributes attributes;
        attributes.font = FontAttributes{.family = QStringLiteral("F").repeated(500) + QString::number(i)};
        countedOf(AttributedString(QStringLiteral("a"), attributes));
    }
    EXPECT_EQ(countedOf(first), first.length());
}

TEST_F(ParagraphMemoryTest, TheModelWithItAndAThreadsCounterCountTheSame)
{
    WordCounterModel plain;
    WordCounterModel remembering;
    remembering.rememberParagraphs();
    ColumnCounter column(currentTextRules(), MeasuringSurface::shared().columnWidthOn(currentPageRules()));
    QString text = lines(700) + QStringLiteral("\r\n\tA paragraph.\u2029\n\n") + lines(30);
    for (int edit = 0; edit < 20; ++edit) {
        const AttributedString edited = styled(text, 11 + edit % 2);
        plain.setAttributedStringToCount(edited);
        remembering.setAttributedStringToCount(edited);
        EXPECT_EQ(remembering.statsRepresentation(), plain.statsRepresentation()) << edit;
        EXPECT_EQ(column.count(edited), plain.statsRepresentation()) << edit;
        const qsizetype at = text.size() * edit / 20;
        text = edit % 2 == 0 ? text.left(at) + QStringLiteral("Word. \r\nAnd") + text.sliced(at)
                             : text.left(at) + text.sliced(at + text.size() / 50);
    }
}
