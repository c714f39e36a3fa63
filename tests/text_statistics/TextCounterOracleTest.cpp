// SPDX-License-Identifier: MIT
// The counts of random texts, added up over their paragraphs, against counts of the whole text.
#include "tests/harness/QuillbayTest.h"
#include "text_statistics/FixedRules.h"
#include "text_statistics/TextCounter.h"

#include <random>

namespace {

// Segments the whole text, and applies the rules in the order of their definition.
class WholeTextOracle {
public:
    explicit WholeTextOracle(const TextRules &rules)
        : m_rules(rules)
    {
    }

    quint64 words(QStringView text)
    {
        Segmenter segmenter;
        quint64 count = 0;
        segmenter.forEachWord(text, [&](QStringView word) {
            const bool isDropped = m_rules.localeIdentifier() == QStringLiteral("en_US") && word.size() == 1
                && !QStringList{QStringLiteral("a"), QStringLiteral("i"), QStringLiteral("o"),
                    QStringLiteral("x")}
                        .contains(word.toString(), Qt::CaseInsensitive);
            count += isDropped ? 0 : 1;
            return true;
        });
        return count;
    }

    quint64 sentences(QStringView text)
    {
        Segmenter segmenter;
        quint64 count = 0;
        segmenter.forEachSentence(text, [&](QStringView sentence) {
            const bool ends = !m_rules.sentencesNeedTerminalPunctuation
                || FixedRules::endsWithTerminalPunctuationMark(sentence);
            count += ends && words(sentence) > 0 ? 1 : 0;
            return true;
        });
        return count;
    }

    static quint64 charactersNotIncludingWhiteSpace(const QString &text)
    {
        return static_cast<quint64>(withoutWhiteSpace(text).size());
    }

    quint64 paragraphs(const QString &text, bool indentedOnly)
    {
        quint64 count = 0;
        QString normalized = text;
        normalized.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
            .replace(u'\r', u'\n')
            .replace(u'\u2029', u'\n');
        for (const QString &paragraph : normalized.split(u'\n')) {
            const bool isConsidered =
                !withoutWhiteSpace(paragraph).isEmpty() && (!indentedOnly || paragraph.front() == u'\t');
            count += isConsidered
                    && sentences(paragraph) >= static_cast<quint64>(m_rules.minimumSentencesOfParagraph)
                ? 1
                : 0;
        }
        return count;
    }

private:
    static QString withoutWhiteSpace(const QString &text)
    {
        QString rest;
        for (const QChar unit : text) {
            if (!unit.isSpace())
                rest.append(unit);
        }
        return rest;
    }

    const TextRules &m_rules;
};

QString randomText(std::mt19937 &random)
{
    static const std::vector<QString> pieces{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("word"),
        QStringLiteral("Dr. Who"), QStringLiteral(". "), QStringLiteral("."), QStringLiteral("? "),
        QStringLiteral("!\" "), QStringLiteral("\u2026"), QStringLiteral(" "), QStringLiteral("\t"),
        QStringLiteral("\n"), QStringLiteral("\r"), QStringLiteral("\r\n"), QStringLiteral("\u2028"),
        QStringLiteral("\u2029"), QStringLiteral("\u0085"), QStringLiteral("\u00A0"), QStringLiteral("5"),
        QStringLiteral("3.5"), QStringLiteral("it's"), QStringLiteral("\u0301"), QStringLiteral("\u200D"),
        QStringLiteral("\U0001F600"), QStringLiteral("\U0001F1E9\U0001F1EA"), QStringLiteral("\u05D0"),
        QStringLiteral("\u0E20\u0E32\u0E29\u0E32\u0E44\u0E17\u0E22"), QStringLiteral("\u4F60\u597D\u3002"),
        QStringLiteral("\u30AB\u30BF"), QString(QChar(0xD800)), QString(QChar(0xDC00)), QString(QChar(0)),
        QStringLiteral("\u0410\u0431."), QStringLiteral("\u201C"), QStringLiteral("\u201D "),
        QStringLiteral("\u00AD")};
    QString text;
    for (auto left = std::uniform_int_distribution<>(0, 60)(random); left > 0; --left)
        text += pieces[std::uniform_int_distribution<size_t>(0, pieces.size() - 1)(random)];
    return text;
}

} // namespace

TEST(TextCounterOracle, ParagraphsAddUpToTheCountOfTheWholeText)
{
    std::mt19937 random(20261120);
    TextCounter counter;
    for (int round = 0; round < 3000; ++round) {
        const QString text = randomText(random);
        QString locale = round % 2 == 0 ? QStringLiteral("en_US") : QStringLiteral("de_DE");
        const TextRules rules{.localeIdentifier = [locale] { return locale; },
            .minimumSentencesOfParagraph = round % 3,
            .sentencesNeedTerminalPunctuation = round % 5 < 2};
        WholeTextOracle oracle(rules);
        const QBYWordCounterStats counts = counter.count(text, rules);
        SCOPED_TRACE(text.toUtf8().toHex().toStdString());
        ASSERT_EQ(counts.numberOfWords, oracle.words(text));
        ASSERT_EQ(counts.numberOfCharacters, oracle.charactersNotIncludingWhiteSpace(text));
        ASSERT_EQ(counts.numberOfSentences, oracle.sentences(text));
        ASSERT_EQ(counts.numberOfParagraphs, oracle.paragraphs(text, false));
        ASSERT_EQ(counts.numberOfIndentedParagraphs, oracle.paragraphs(text, true));
        ASSERT_EQ(counts.numberOfWords, counter.numberOfWords(text, rules));
        ASSERT_EQ(counts.numberOfSentences, counter.numberOfSentences(text, rules));
        ASSERT_EQ(counts.numberOfParagraphs, counter.numberOfParagraphs(text, rules));
        ASSERT_EQ(counts.numberOfIndentedParagraphs, counter.numberOfParagraphsIndented(text, rules));
        ASSERT_EQ(counts.numberOfHardLineBreaks, FixedRules::numberOfHardLineBreaks(text));
    }
}
