// SPDX-License-Identifier: MIT
#include "platform/segmentation/Segmenter.h"

#include "tests/harness/QuillbayTest.h"

#include <QStringList>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

QStringList words(const QString &text)
{
    QStringList list;
    Segmenter segmenter;
    segmenter.forEachWord(text, [&](QStringView word) {
        list.append(word.toString());
        return true;
    });
    return list;
}

QStringList sentences(const QString &text)
{
    QStringList list;
    Segmenter segmenter;
    segmenter.forEachSentence(text, [&](QStringView sentence) {
        list.append(sentence.toString());
        return true;
    });
    return list;
}

} // namespace

TEST(Segmenter, AnEmptyTextHasNeitherWordsNorSentences)
{
    EXPECT_THAT(words(QString()), IsEmpty());
    EXPECT_THAT(sentences(QString()), IsEmpty());
}

TEST(Segmenter, WhiteSpaceAndPunctuationAreNotWords)
{
    EXPECT_THAT(words(QStringLiteral("Well, it's \u201Cdone\u201D \u2014 at 3.5 %!")),
        ElementsAre(QStringLiteral("Well"), QStringLiteral("it's"), QStringLiteral("done"),
            QStringLiteral("at"), QStringLiteral("3.5")));
    EXPECT_THAT(words(QStringLiteral(" \t\n ... --- @ _ \u0301")), IsEmpty());
}

TEST(Segmenter, EmojiAreNotWordsButADigitInAKeycapIs)
{
    EXPECT_THAT(words(QStringLiteral("\U0001F600 \U0001F468\u200D\U0001F469")), IsEmpty());
    EXPECT_THAT(words(QStringLiteral("1\uFE0F\u20E3")), ElementsAre(QStringLiteral("1\uFE0F\u20E3")));
}

TEST(Segmenter, IdeographsLetterNumbersAndCircledLettersMakeWords)
{
    EXPECT_TRUE(isWord(u"\u5B57"));
    EXPECT_TRUE(isWord(u"\u3007"));
    EXPECT_TRUE(isWord(u"\u2167")); // Roman numeral eight
    EXPECT_TRUE(isWord(u"\u24B6")); // circled A
    EXPECT_TRUE(isWord(u"\U00020000"));
    EXPECT_FALSE(isWord(u"\u00B2")); // superscript two is not a decimal digit
    EXPECT_FALSE(isWord(u"\u093E")); // a vowel sign alone
    EXPECT_FALSE(isWord(u"\xD800"));
    EXPECT_FALSE(isWord(u""));
}

TEST(Segmenter, DictionariesDivideThaiAndChineseAndJapanese)
{
    EXPECT_THAT(words(QStringLiteral("\u0E20\u0E32\u0E29\u0E32\u0E44\u0E17\u0E22")),
        ElementsAre(QStringLiteral("\u0E20\u0E32\u0E29\u0E32"), QStringLiteral("\u0E44\u0E17\u0E22")));
    EXPECT_THAT(words(QStringLiteral("\u4F60\u597D\u4E16\u754C")),
        ElementsAre(QStringLiteral("\u4F60\u597D"), QStringLiteral("\u4E16\u754C")));
    EXPECT_THAT(words(QStringLiteral("\u30AB\u30BF\u30AB\u30CA\u3067\u3059")),
        ElementsAre(QStringLiteral("\u30AB\u30BF\u30AB\u30CA"), QStringLiteral("\u3067\u3059")));
}

TEST(Segmenter, SentencesCoverTheTextAndKeepTheirPunctuation)
{
    EXPECT_THAT(sentences(QStringLiteral("One. Two?  \u201CThree!\u201D four")),
        ElementsAre(QStringLiteral("One. "), QStringLiteral("Two?  "), QStringLiteral("\u201CThree!\u201D "),
            QStringLiteral("four")));
    EXPECT_THAT(sentences(QStringLiteral("It costs 3.5 dollars.")),
        ElementsAre(QStringLiteral("It costs 3.5 dollars.")));
}

TEST(Segmenter, StopsWhenTheCallerReturnsFalse)
{
    Segmenter segmenter;
    int seen = 0;
    segmenter.forEachWord(u"one two three", [&](QStringView) { return ++seen < 2; });
    EXPECT_EQ(seen, 2);
}

TEST(Segmenter, WordsOfASentenceCanBeIteratedWithinSentences)
{
    Segmenter segmenter;
    QStringList firstWords;
    segmenter.forEachSentence(u"One two. Three four. Five.", [&](QStringView sentence) {
        segmenter.forEachWord(sentence, [&](QStringView word) {
            firstWords.append(word.toString());
            return false;
        });
        return true;
    });
    EXPECT_THAT(
        firstWords, ElementsAre(QStringLiteral("One"), QStringLiteral("Three"), QStringLiteral("Five")));
}
