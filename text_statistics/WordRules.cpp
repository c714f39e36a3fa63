// SPDX-License-Identifier: MIT
#include "text_statistics/WordRules.h"

#include "platform/segmentation/GraphemeClusters.h"
#include "platform/segmentation/Paragraphs.h"
#include "text_statistics/ItemReport.h"
#include "text_statistics/TextCounter.h"
#include "text_statistics/UrlFinder.h"

#include <algorithm>
#include <array>

namespace {

bool isHyphen(QChar unit)
{
    return unit == u'-' || unit == u'\u2010' || unit == u'\u2011';
}

struct Range {
    char32_t first;
    char32_t last;
};

constexpr std::array ideographs{Range{0x2E80, 0x2FFF}, Range{0x3001, 0x30FF}, Range{0x3105, 0x312F},
    Range{0x3190, 0x9FFF}, Range{0xF900, 0xFAFF}, Range{0xFE30, 0xFE4F}, Range{0xFF01, 0xFF9F},
    Range{0x1B000, 0x1B16F}, Range{0x20000, 0x3FFFF}};
constexpr std::array hangulAndThai{Range{0x0E01, 0x0E5B}, Range{0x1100, 0x11FF}, Range{0x3130, 0x318F},
    Range{0xA960, 0xA97F}, Range{0xAC00, 0xD7FF}, Range{0xFFA0, 0xFFDC}};

template <typename Ranges>
bool isIn(const Ranges &ranges, char32_t character)
{
    return std::any_of(ranges.begin(), ranges.end(),
        [character](const Range &range) { return character >= range.first && character <= range.last; });
}

bool isSingle(char32_t character, WordRules::Singles singles)
{
    if (singles == WordRules::Singles::None || character < 0x0E01)
        return false;
    return isIn(ideographs, character)
        || (singles == WordRules::Singles::IdeographsHangulThai && isIn(hangulAndThai, character));
}

/// Counts words between white space.
class BlankWords {
public:
    BlankWords(const WordRules &rules, QStringView text)
        : m_rules(rules)
        , m_text(text)
        , m_urls(text)
    {
    }

    quint64 count()
    {
        for (qsizetype at = 0; at < m_text.size();) {
            if (const std::optional<UrlFinder::Url> url = urlAt(at)) {
                m_words += m_rules.urls == WordRules::Urls::One && !m_isOpen ? 1 : 0;
                m_isOpen = m_rules.urls == WordRules::Urls::One;
                at = url->end;
                continue;
            }
            const qsizetype end = graphemeClusterEnd(m_text, at);
            add(at);
            at = end;
        }
        return m_words;
    }

private:
    std::optional<UrlFinder::Url> urlAt(qsizetype position)
    {
        if (m_rules.urls == WordRules::Urls::AsBasis)
            return std::nullopt;
        const std::optional<UrlFinder::Url> url = m_urls.atOrAfter(position);
        return url && url->start <= position ? url : std::nullopt;
    }

    void add(qsizetype position)
    {
        if (isSeparator(position)) {
            m_isOpen = false;
        } else if (isSingle(codePointAt(m_text, position), m_rules.singles)) {
            ++m_words;
            m_isOpen = false;
        } else {
            m_words += m_isOpen ? 0 : 1;
            m_isOpen = true;
        }
    }

    [[nodiscard]] bool isSeparator(qsizetype position) const
    {
        const QChar unit = m_text[position];
        if (unit.isSpace() || m_rules.separators.contains(unit))
            return true;
        return m_rules.hyphenated == WordRules::Hyphenated::Several && isHyphen(unit) && position > 0
            && position + 1 < m_text.size() && m_text[position - 1].isLetterOrNumber()
            && m_text[position + 1].isLetterOrNumber();
    }

    const WordRules &m_rules;
    QStringView m_text;
    UrlFinder m_urls;
    bool m_isOpen = false; // the last character belongs to a word that has been counted
    quint64 m_words = 0;
};

/// Takes the words between Unicode boundaries, in the order of the text, and counts those that remain when
/// they are joined at hyphens, divided at separators, or in an address.
class JoinedWords {
public:
    JoinedWords(const WordRules &rules, QStringView text)
        : m_rules(rules)
        , m_text(text)
        , m_urls(text)
    {
    }

    void add(const CountedItem &item)
    {
        if (item.reason == CountingReason::NoLetterOrDigit || isOfUrl(item))
            return;
        const bool isJoined = m_rules.hyphenated == WordRules::Hyphenated::One && m_end > 0
            && item.start == m_end + 1 && isHyphen(m_text[m_end]);
        const quint64 pieces = piecesOf(item);
        // A single letter that is no word alone, as in "e-mail", is part of one.
        m_words += !isJoined ? pieces : pieces + (m_isCounted ? 0 : 1) - 1;
        m_isCounted = isJoined || pieces > 0;
        m_end = item.end();
    }

    [[nodiscard]] quint64 words() const { return m_words; }

private:
    bool isOfUrl(const CountedItem &item)
    {
        if (m_rules.urls == WordRules::Urls::AsBasis)
            return false;
        const std::optional<UrlFinder::Url> url = m_urls.atOrAfter(item.start);
        if (!url || item.start < url->start)
            return false;
        if (m_rules.urls == WordRules::Urls::One && m_lastUrl != url->start)
            ++m_words;
        m_lastUrl = url->start;
        m_end = 0;
        return true;
    }

    [[nodiscard]] quint64 piecesOf(const CountedItem &item) const
    {
        if (m_rules.separators.isEmpty())
            return item.isCounted() ? 1 : 0;
        quint64 pieces = 0;
        bool isOpen = false;
        for (qsizetype at = item.start; at < item.end(); ++at) {
            const QChar unit = m_text[at];
            if (m_rules.separators.contains(unit)) {
                isOpen = false;
            } else if (!isOpen && (unit.isLetterOrNumber() || unit.isSurrogate())) {
                isOpen = true;
                ++pieces;
            }
        }
        return pieces > 1 || item.isCounted() ? pieces : 0;
    }

    const WordRules &m_rules;
    QStringView m_text;
    UrlFinder m_urls;
    quint64 m_words = 0;
    qsizetype m_end = 0; // of the last word; 0 if the next one cannot join it
    bool m_isCounted = false; // the last word, or what it has been joined to
    qsizetype m_lastUrl = -1;
};

/// Without the line ends of paragraphs, as they are no characters for others.
void countCharactersOfLines(WordRules::Characters characters, QStringView text, QBYWordCounterStats &stats)
{
    stats.numberOfCharacters = 0;
    stats.numberOfCharactersIncludingWhitespace = 0;
    forEachParagraph(text, [&](const Paragraph &paragraph) {
        const QStringView line = paragraph.content(text);
        for (qsizetype at = 0; at < line.size();) {
            const qsizetype end =
                characters == WordRules::Characters::GraphemesOfLines ? graphemeClusterEnd(line, at) : at + 1;
            stats.numberOfCharactersIncludingWhitespace += 1;
            stats.numberOfCharacters += line[at].isSpace() ? 0 : 1;
            at = end;
        }
    });
}

} // namespace

WordRules WordRules::ofLibreOffice()
{
    return {.basis = Basis::Blanks,
        .singles = Singles::IdeographsHangulThai,
        .characters = Characters::GraphemesOfLines,
        .separators = QStringLiteral("\u2013\u2014")};
}

WordRules WordRules::ofWordProcessors()
{
    return {
        .basis = Basis::Blanks, .singles = Singles::Ideographs, .characters = Characters::CodeUnitsOfLines};
}

quint64 numberOfWordsBy(
    const WordRules &rules, QStringView text, const TextRules &textRules, TextCounter &counter)
{
    if (rules.basis == WordRules::Basis::Blanks)
        return BlankWords(rules, text).count();
    JoinedWords words(rules, text);
    ItemReport report(text, Statistic::Words, [&words](const CountedItem &item) { words.add(item); });
    (void)counter.count(text, textRules, {}, &report);
    return words.words();
}

void applyWordRules(const WordRules &rules, QStringView text, const TextRules &textRules,
    TextCounter &counter, QBYWordCounterStats &stats)
{
    if (rules == WordRules())
        return;
    stats.numberOfWords = numberOfWordsBy(rules, text, textRules, counter);
    if (rules.characters != WordRules::Characters::CodeUnits)
        countCharactersOfLines(rules.characters, text, stats);
}
