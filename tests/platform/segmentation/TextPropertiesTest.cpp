// SPDX-License-Identifier: MIT
// Line breaks, grapheme clusters, scripts and directions, compared with ICU's own iterators where it has
// them.
#include "platform/segmentation/BidiRuns.h"
#include "platform/segmentation/GraphemeClusters.h"
#include "platform/segmentation/LineBreaks.h"
#include "platform/segmentation/ScriptRuns.h"

#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

QString randomText(std::mt19937 &random, int length)
{
    static const std::vector<QString> pieces{QStringLiteral("word"), QStringLiteral(" "),
        QStringLiteral("   "), QStringLiteral("a"), QStringLiteral("12.5"), QStringLiteral("(x) "),
        QStringLiteral("\"q\" "), QStringLiteral("well-known"), QStringLiteral("$5 %"), QStringLiteral("/"),
        QStringLiteral("\u00A0"), QStringLiteral("\u00AD"), QStringLiteral("e\u0301"),
        QStringLiteral("\u0301"), QStringLiteral("\u200B"), QStringLiteral("\u2060"), QStringLiteral("\t"),
        QStringLiteral("\u2014"), QStringLiteral("漢字"), QStringLiteral("「か」"),
        QStringLiteral("ภาษาไทยง่าย"), QStringLiteral("한국어"), QStringLiteral("\u1112\u1161\u11AB"),
        QStringLiteral("हिन्दी "), QStringLiteral("क्\u200Dष्त्र"), QStringLiteral("العربية "),
        QStringLiteral("עברית "), QStringLiteral("👩‍👩‍👧"), QStringLiteral("👍🏽"),
        QStringLiteral("🇩🇪🇫🇷🇮"), QStringLiteral("❤\uFE0F"), QStringLiteral("©\u200D©"),
        QStringLiteral("\u0600"), QStringLiteral("\r"), QStringLiteral("\u0001"), QString(QChar(0xD800)),
        QStringLiteral(". "), QStringLiteral("! "), QStringLiteral(") "), QStringLiteral(", ")};
    QString text;
    while (text.size() < length)
        text += pieces[random() % pieces.size()];
    return text;
}

std::vector<qsizetype> boundaries(BreakKind kind, QStringView text)
{
    BreakIterator iterator(kind);
    iterator.setText(text);
    std::vector<qsizetype> found;
    for (qsizetype at = iterator.next(); at >= 0; at = iterator.next())
        found.push_back(at);
    return found;
}

TEST(GraphemeClusters, EndAtTheBoundariesOfTheBreakIterator)
{
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        const QString text = randomText(random, 60);
        std::vector<qsizetype> found;
        for (qsizetype at = 0; at < text.size();)
            found.push_back(at = graphemeClusterEnd(text, at));
        ASSERT_EQ(found, boundaries(BreakKind::GraphemeCluster, text)) << text.toStdString();
    }
}

TEST(GraphemeClusters, NeverConsistOfSeveralCharactersThatStandAlone)
{
    std::vector<char16_t> alone;
    for (int unit = 0; unit < 0x10000; ++unit) {
        if (standsAlone(static_cast<char16_t>(unit)))
            alone.push_back(static_cast<char16_t>(unit));
    }
    ASSERT_GT(alone.size(), 50'000U);
    std::mt19937 random(7);
    for (int round = 0; round < 20'000; ++round) {
        QString text(1, QChar(alone[random() % alone.size()]));
        text += QChar(alone[random() % alone.size()]);
        ASSERT_EQ(boundaries(BreakKind::GraphemeCluster, text), (std::vector<qsizetype>{1, 2}))
            << text.toStdString();
    }
}

TEST(GraphemeClusters, KnowWhichOfThemAreEmoji)
{
    EXPECT_TRUE(isEmojiCluster(u"😀"));
    EXPECT_TRUE(isEmojiCluster(u"❤\uFE0F"));
    EXPECT_FALSE(isEmojiCluster(u"❤"));
    EXPECT_FALSE(isEmojiCluster(u"😀\uFE0E"));
    EXPECT_FALSE(isEmojiCluster(u"1"));
}

TEST(GraphemeClusters, KnowTheCharactersWithoutAWidthOfTheirOwn)
{
    for (const char32_t character : {U'\u0301', U'\u064E', U'\u200C', U'\u200D', U'\uFE0F'})
        EXPECT_TRUE(isNonspacing(character)) << std::hex << static_cast<quint32>(character);
    for (const char32_t character : {U'a', U' ', U'\u0903', U'\u20DD', U'\u200B', U'\U0001F3FB'})
        EXPECT_FALSE(isNonspacing(character)) << std::hex << static_cast<quint32>(character);
}

TEST(LineBreaks, AreThoseOfTheBreakIteratorAtAnyDistanceOfCalls)
{
    std::mt19937 random(2);
    LineBreaks breaks;
    for (int round = 0; round < 300; ++round) {
        const QString text = randomText(random, 300);
        const std::vector<qsizetype> all = boundaries(BreakKind::Line, text);
        breaks.setParagraph(text);
        for (qsizetype position = 1; position < text.size();
             position += 1 + static_cast<qsizetype>(random() % 80)) {
            qsizetype expected = 0;
            for (const qsizetype boundary : all)
                expected = boundary <= position ? boundary : expected;
            ASSERT_EQ(breaks.lastAtOrBefore(position), expected) << position << " in " << text.toStdString();
        }
    }
}

// Every two or three classes of UAX #14 meet, at every distance from the place in question.
TEST(LineBreaks, AreThoseOfTheBreakIteratorForMixturesOfAllClasses)
{
    const QString characters =
        QStringLiteral("aZ09  .,:;!?()[]{}\"'-/\\%$+*#&@|~_<=>^`é§°±×÷¿¡«»“”‘’„…–—‐\u2011€№α"
                       "бאש\u05BEعก漢字かっー々・、。「」！？（）％￥가각\u1100\u1161\u00A0\u00AD\u200B\u200D"
                       "\u2060\u0301\u0308\t\u000C"
                       "\u2028☺☎️👍🏽🇩🇪𝟘𐐀");
    std::mt19937 random(4);
    LineBreaks breaks;
    for (int round = 0; round < 3000; ++round) {
        QString text;
        while (text.size() < 40) {
            // Characters of one neighbourhood meet each other more often.
            static qsizetype near = 0;
            if (random() % 8 == 0)
                near = static_cast<qsizetype>(random() % static_cast<size_t>(characters.size()));
            text += characters[(near + static_cast<qsizetype>(random() % 24)) % characters.size()];
            if (random() % 6 == 0)
                text += u' ';
        }
        const std::vector<qsizetype> all = boundaries(BreakKind::Line, text);
        breaks.setParagraph(text);
        qsizetype expected = 0;
        for (qsizetype position = 1; position < text.size(); ++position) {
            if (std::binary_search(all.begin(), all.end(), position))
                expected = position;
            if (round % 2 && random() % 4)
                continue;
            ASSERT_EQ(breaks.lastAtOrBefore(position), expected) << position << " in " << text.toStdString();
        }
    }
}

TEST(LineBreaks, AnEarlierPositionGivesACorrectResultOrNone)
{
    std::mt19937 random(3);
    LineBreaks breaks;
    for (int round = 0; round < 300; ++round) {
        const QString text = randomText(random, 300);
        const std::vector<qsizetype> all = boundaries(BreakKind::Line, text);
        breaks.setParagraph(text);
        for (int question = 0; question < 20; ++question) {
            const auto position = static_cast<qsizetype>(random() % static_cast<size_t>(text.size()));
            qsizetype expected = 0;
            for (const qsizetype boundary : all)
                expected = boundary <= position ? boundary : expected;
            const qsizetype answer = breaks.lastAtOrBefore(position);
            ASSERT_TRUE(answer == expected || answer == -1) << position << " in " << text.toStdString();
        }
    }
}

TEST(ScriptRuns, GiveSharedCharactersToTheScriptBeforeThem)
{
    const QString text = QStringLiteral("1. abc, где 漢字。");
    const quint32 latin = 0x4C61746E; // 'Latn'
    const quint32 cyrillic = 0x4379726C; // 'Cyrl'
    const quint32 han = 0x48616E69; // 'Hani'
    ScriptRuns scripts;
    const ScriptRun first = scripts.runAt(text, 0, 0);
    EXPECT_EQ(first.script, latin);
    EXPECT_EQ(first.end, 8);
    const ScriptRun second = scripts.runAt(text, first.end, first.script);
    EXPECT_EQ(second.script, cyrillic);
    EXPECT_EQ(second.end, 12);
    const ScriptRun third = scripts.runAt(text, second.end, second.script);
    EXPECT_EQ(third.script, han);
    EXPECT_EQ(third.end, text.size());
}

TEST(BidiRuns, FollowTheDirectionOfTheCharacters)
{
    BidiRuns runs;
    const QString text = QStringLiteral("abc אבג 12 def");
    runs.setParagraph(text, BidiRuns::Base::FirstStrongCharacter);
    EXPECT_FALSE(runs.isParagraphRightToLeft());
    EXPECT_EQ(runs.runAt(0).end, 4);
    EXPECT_FALSE(runs.runAt(0).isRightToLeft);
    EXPECT_TRUE(runs.runAt(4).isRightToLeft);
    EXPECT_FALSE(runs.runAt(8).isRightToLeft) << "digits run from left to right";
}

TEST(BidiRuns, TakeTheDirectionOfTheParagraphFromItsFirstLetterOrTheCaller)
{
    BidiRuns runs;
    runs.setParagraph(u"1 אבג abc", BidiRuns::Base::FirstStrongCharacter);
    EXPECT_TRUE(runs.isParagraphRightToLeft());
    runs.setParagraph(u"abc", BidiRuns::Base::RightToLeft);
    EXPECT_TRUE(runs.isParagraphRightToLeft());
    EXPECT_FALSE(runs.runAt(0).isRightToLeft);
    runs.setParagraph(u"abc", BidiRuns::Base::FirstStrongCharacter);
    EXPECT_FALSE(runs.isParagraphRightToLeft());
    EXPECT_EQ(runs.runAt(0).end, 3);
}

} // namespace
