// SPDX-License-Identifier: MIT
// The counts of TextCounter against those of PlainTextCounter.
#include "tests/harness/QuillbayTest.h"
#include "tests/text_statistics/TextsOfAllClasses.h"
#include "text_statistics/TextCounter.h"

#include <QFile>

#include <map>

namespace {

class CountingDifferenceTest : public ::testing::Test {
protected:
    static constexpr int variants = rulesVariantCount;

    bool differs(QStringView text, int variant)
    {
        const TextRules rules = rulesOf(variant);
        return !(m_fast.count(text, rules) == m_plain.count(text, rules));
    }

    // Shortens the text as far as the counts still differ, and reports the rest.
    void expectSame(QString text, int variant)
    {
        if (!differs(text, variant))
            return;
        for (qsizetype step = text.size() / 2; step > 0; step = step == 1 ? 0 : (step + 1) / 2) {
            for (qsizetype start = 0; start < text.size();) {
                QString shorter = text;
                shorter.remove(start, step);
                if (differs(shorter, variant))
                    text = shorter;
                else
                    start += step;
            }
        }
        const TextRules rules = rulesOf(variant);
        const QBYWordCounterStats fast = m_fast.count(text, rules);
        const QBYWordCounterStats plain = m_plain.count(text, rules);
        QString units;
        for (const QChar unit : text)
            units += QString::number(unit.unicode(), 16) + u' ';
        ADD_FAILURE() << "variant " << variant << ": " << units.toStdString() << " fast "
                      << fast.numberOfWords << " words, " << fast.numberOfSentences << " sentences; plain "
                      << plain.numberOfWords << " words, " << plain.numberOfSentences << " sentences";
    }

    TextCounter m_fast;
    PlainTextCounter m_plain;
};

} // namespace

TEST_F(CountingDifferenceTest, EveryPairAndTripleOfClasses)
{
    const std::vector<QString> &pieces = representatives();
    ASSERT_GT(pieces.size(), 40U);
    int variant = 0;
    for (const QString &first : pieces) {
        QString text = first + u'\n';
        for (const QString &second : pieces) {
            text += first + second + u'\n';
            for (const QString &third : pieces)
                text += first + second + third + u'\n';
        }
        expectSame(text, ++variant % variants);
    }
}

TEST_F(CountingDifferenceTest, RandomTextsOfAllClasses)
{
    std::mt19937 random(18);
    for (int round = 0; round < 3000; ++round)
        expectSame(randomOf(representatives(), random, round % 60), round % variants);
}

TEST_F(CountingDifferenceTest, RandomTextsOfFewClassesLongerThanAWindow)
{
    std::mt19937 random(19);
    for (int round = 0; round < 200; ++round) {
        std::vector<QString> few;
        for (int i = 0; i < 4; ++i)
            few.push_back(randomOf(representatives(), random, 1));
        few.push_back(QStringLiteral("word"));
        QString text;
        while (text.size() < 10'000)
            text += randomOf({few[0], few[1], few[2], few[3], few[4]}, random, round % 3 == 0 ? 5000 : 40)
                + (round % 2 == 0 ? QStringLiteral(" ") : QStringLiteral(". "));
        expectSame(text, round % variants);
    }
}

// Some of these run over the end of a window of 4096 code units, without a boundary.
TEST_F(CountingDifferenceTest, OneEndlessWordAndWhatFollowsIt)
{
    for (const QString &last : representatives()) {
        for (const qsizetype length : {4094, 4095, 4096, 8191})
            expectSame(QString(length, u'a') + last + QStringLiteral("bc d."), 2);
    }
}

TEST_F(CountingDifferenceTest, TextsOfEveryScript)
{
    std::map<QChar::Script, std::vector<QString>> letters;
    for (char32_t character = 0x80; character < 0x20000; ++character) {
        if (QChar::category(character) != QChar::Other_NotAssigned)
            letters[QChar::script(character)].push_back(QString::fromUcs4(&character, 1));
    }
    EXPECT_GT(letters.size(), 100U);
    const std::vector<QString> marks{QStringLiteral(" "), QStringLiteral(" "), QStringLiteral(" "),
        QStringLiteral(". "), QStringLiteral("? "), QStringLiteral(", "), QStringLiteral("\u3002"),
        QStringLiteral("\u0964 "), QStringLiteral("\u061F "), QStringLiteral("12"), QStringLiteral("\n"),
        QStringLiteral(".\""), QStringLiteral("'")};
    std::mt19937 random(20);
    int variant = 0;
    for (const auto &[script, characters] : letters) {
        QString text;
        for (int word = 0; word < 300; ++word)
            text += randomOf(characters, random, static_cast<qsizetype>(random() % 12))
                + randomOf(marks, random, 1);
        expectSame(text, ++variant % variants);
    }
}

// The test files of the Unicode Character Database: every line holds code points between marks of boundaries.
TEST_F(CountingDifferenceTest, TheTextsOfTheUnicodeTestFiles)
{
    int variant = 0;
    for (const char *name :
        {"WordBreakTest.txt", "SentenceBreakTest.txt", "GraphemeBreakTest.txt", "LineBreakTest.txt"}) {
        QFile file(QStringLiteral("/usr/share/unicode/auxiliary/") + QString::fromLatin1(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "install the package unicode-data";
        int texts = 0;
        while (!file.atEnd()) {
            const QByteArray line = file.readLine();
            QString text;
            for (const QByteArray &token : line.left(line.indexOf('#')).simplified().split(' ')) {
                bool isNumber = false;
                const char32_t character = token.toUInt(&isNumber, 16);
                if (isNumber)
                    text += QString::fromUcs4(&character, 1);
            }
            expectSame(text, ++variant % variants);
            texts += text.isEmpty() ? 0 : 1;
        }
        EXPECT_GT(texts, 400) << name;
    }
}
