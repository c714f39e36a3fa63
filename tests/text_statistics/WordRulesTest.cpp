// SPDX-License-Identifier: MIT
// Words and characters by other rules than ours.
#include "text_statistics/WordRules.h"

#include "tests/harness/QuillbayTest.h"
#include "text_statistics/TextCounter.h"
#include "text_statistics/UrlFinder.h"

namespace {

using Basis = WordRules::Basis;
using Hyphenated = WordRules::Hyphenated;
using Urls = WordRules::Urls;

const TextRules american{.localeIdentifier = [] { return QStringLiteral("en_US"); }};

quint64 words(const WordRules &rules, const QString &text)
{
    TextCounter counter;
    return numberOfWordsBy(rules, text, american, counter);
}

std::vector<std::string> urls(const QString &text)
{
    UrlFinder finder(text);
    std::vector<std::string> found;
    qsizetype at = 0;
    while (const std::optional<UrlFinder::Url> url = finder.atOrAfter(at)) {
        found.push_back(text.sliced(url->start, url->end - url->start).toStdString());
        at = url->end;
    }
    return found;
}

} // namespace

TEST(WordRules, TheDefaultIsOurCount)
{
    TextCounter counter;
    for (const char *line :
        {"", "A b c", "well-known https://x.org/a", "1,000 o'clock \u2014 x", "\u65E5\u672C"}) {
        const QString text = QString::fromUtf8(line);
        EXPECT_EQ(words({}, text), counter.numberOfWords(text, american)) << line;
        QBYWordCounterStats stats = counter.count(text, american);
        const QBYWordCounterStats before = stats;
        applyWordRules({}, text, american, counter, stats);
        EXPECT_EQ(stats, before);
    }
}

TEST(WordRules, HyphenatedWordsAreOneOrSeveral)
{
    const WordRules one{.hyphenated = Hyphenated::One};
    EXPECT_EQ(words(one, QStringLiteral("a well-known state-of-the-art boat")), 4);
    EXPECT_EQ(
        words(one, QStringLiteral("e-mail, x- ray, -y, co\u2010op")), 4); // e-mail, x, ray, co-op, y is none
    const WordRules several{.basis = Basis::Blanks, .hyphenated = Hyphenated::Several};
    EXPECT_EQ(words(several, QStringLiteral("a well-known state-of-the-art boat - no")), 10);
    EXPECT_EQ(words({.basis = Basis::Blanks}, QStringLiteral("well-known boat")), 2);
}

TEST(WordRules, SeparatorsDivideWords)
{
    EXPECT_EQ(words({.separators = QStringLiteral("'_")}, QStringLiteral("l'eau snake_case rock")), 5);
    EXPECT_EQ(words({}, QStringLiteral("l'eau snake_case rock")), 3);
    const WordRules blanks{.basis = Basis::Blanks, .separators = QStringLiteral("/\u2014")};
    EXPECT_EQ(words(blanks, QStringLiteral("and/or \u2014 one\u2014two /")), 4);
}

TEST(WordRules, AddressesAreOneWordOrNone)
{
    const QString text = QStringLiteral("See https://example.org/a-b?c=d, or (www.example.org) now.");
    EXPECT_EQ(words({.urls = Urls::One}, text), 5);
    EXPECT_EQ(words({.urls = Urls::None}, text), 3);
    EXPECT_EQ(words({.basis = Basis::Blanks, .urls = Urls::One}, text), 5);
    EXPECT_EQ(words({.basis = Basis::Blanks, .urls = Urls::None}, QStringLiteral("See https://a.b now")), 2);
}

TEST(WordRules, AddressesEndBeforePunctuation)
{
    EXPECT_EQ(
        urls(QStringLiteral("<https://a.org/x>, (see git+ssh://h/p). \"http://b\" www.c.de! mailto:d@e")),
        (std::vector<std::string>{"https://a.org/x", "git+ssh://h/p", "http://b", "www.c.de", "mailto:d@e"}));
    EXPECT_EQ(
        urls(QStringLiteral("a:// :// www://. awww.x ://x")), (std::vector<std::string>{"a://", "www://"}));
    EXPECT_EQ(urls(QString(100'000, u':')), std::vector<std::string>());
}

TEST(WordRules, WordProcessorsCountBetweenWhiteSpaceAndWithoutLineEnds)
{
    TextCounter counter;
    const QString text = QStringLiteral("A \u2013 b\u2014c\r\n\u65E5\u672C \u00E9e\u0301\n");
    QBYWordCounterStats stats = counter.count(text, american);
    applyWordRules(WordRules::ofWordProcessors(), text, american, counter, stats);
    EXPECT_EQ(stats.numberOfWords, 6); // A, dash, b-c, two ideographs, the accents
    EXPECT_EQ(stats.numberOfCharactersIncludingWhitespace, 13);
    applyWordRules(WordRules::ofLibreOffice(), text, american, counter, stats);
    EXPECT_EQ(stats.numberOfWords, 6); // A, b, c, two ideographs, the accents
    EXPECT_EQ(stats.numberOfCharactersIncludingWhitespace, 12);
    EXPECT_EQ(stats.numberOfCharacters, 9);
}
