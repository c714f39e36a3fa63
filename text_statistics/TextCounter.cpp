// SPDX-License-Identifier: MIT
#include "text_statistics/TextCounter.h"

#include "platform/segmentation/SentenceEnds.h"
#include "text_statistics/FixedRules.h"

#include <algorithm>
#include <bit>

namespace {

using Fact = TextMasks::WordFact;

} // namespace

/// One text on its way through the windows of the scanner. A class of its own counts without a report, so
/// that reports cost nothing where nobody wants them.
template <bool isReporting>
class TextCounter::Pass {
public:
    /// report: null unless isReporting.
    Pass(TextCounter &counter, QStringView text, const TextRules &rules, const Progress &progress,
        ItemReport *report)
        : m_counter(counter)
        , m_scanner(counter.m_scanner)
        , m_text(text)
        , m_rules(rules)
        , m_progress(progress)
        , m_report(report)
    {
    }

    QBYWordCounterStats run()
    {
        WordTrace trace([this](qsizetype start, qsizetype end) { m_report->addWord(start, end, m_rules); });
        const bool wantsWords = isReporting && m_report->wants(Statistic::Words);
        m_scanner.setText(m_text, wantsWords ? &trace : nullptr);
        while (m_scanner.next())
            countWindow();
        if (m_paragraph < m_text.size()) {
            closeParagraph(m_text.size());
            if (!isLineEnd(m_text.back().unicode()))
                endHardLine(m_text.size());
            reportProgress(m_text.size());
        }
        if constexpr (isReporting)
            m_report->finish();
        m_counts.numberOfCharactersIncludingWhitespace = static_cast<quint64>(m_text.size());
        return m_counts;
    }

private:
    void countWindow()
    {
        countWords();
        const TextMasks &masks = m_scanner.masks();
        m_counts.numberOfCharacters += static_cast<quint64>(masks.length());
        for (qsizetype index = 0; index < masks.wordCount(); ++index) {
            const quint64 white = masks.word(CharacterClass::White, index);
            m_counts.numberOfCharacters -= TextMasks::countBits(white);
            const quint64 separators = masks.word(CharacterClass::LineSeparator, index)
                | masks.word(CharacterClass::ParagraphSeparator, index);
            endSentences(separators | masks.word(CharacterClass::Terminator, index), index);
            if constexpr (isReporting)
                reportCharacters(white, index);
        }
        m_hasCounted = m_hasCounted || hasCountedWord(m_scanner.end());
        m_hasLettered = m_hasLettered || hasLetter(m_scanner.end());
        m_hasInk = m_hasInk || hasInk(m_scanner.end());
        if (m_paragraph < m_scanner.start())
            reportProgress(m_scanner.end());
    }

    // Asks for the locale at every word that it may decide about, as it may change meanwhile.
    void countWords()
    {
        quint64 dropped = 0;
        for (quint64 left = m_scanner.loneUnits(); left > 0; --left)
            dropped += m_rules.areLoneUnitsCounted() ? 0 : 1;
        m_counts.numberOfWords += m_scanner.words() - dropped;
    }

    void endHardLine(qsizetype end)
    {
        m_counts.numberOfHardLineBreaks += 1;
        if constexpr (isReporting)
            m_report->addLine(Statistic::HardLineBreaks, std::exchange(m_line, end), end);
    }

    void reportCharacters(quint64 white, qsizetype index)
    {
        const qsizetype start = m_scanner.start() + index * TextMasks::bitsPerWord;
        const qsizetype length = std::min(m_scanner.end() - start, TextMasks::bitsPerWord);
        for (qsizetype at = 0; at < length;) {
            const bool isWhite = white >> at & 1;
            const quint64 others = (isWhite ? ~white : white) >> at;
            const qsizetype next = std::min(length, at + std::countr_zero(others));
            m_report->addCharacters(start + at, start + next, isWhite);
            at = next;
        }
    }

    void endSentences(quint64 ends, qsizetype index)
    {
        for (; ends; ends &= ends - 1) {
            const qsizetype position = textPosition(ends, index);
            const char16_t unit = m_text.utf16()[position];
            if (unit == u'\u2028')
                endHardLine(position + 1);
            if (position < m_next)
                continue;
            if (isParagraphSeparator(unit)) {
                endParagraph(position);
                continue;
            }
            const SentenceStep step = sentenceStepAt(m_text, m_sentence, position);
            m_next = step.position;
            if (step.isEnd)
                closeSentence(step.position);
        }
    }

    void endParagraph(qsizetype separator)
    {
        closeParagraph(separator);
        const char16_t *units = m_text.utf16();
        const bool isPair =
            units[separator] == u'\r' && separator + 1 < m_text.size() && units[separator + 1] == u'\n';
        m_paragraph = separator + (isPair ? 2 : 1);
        endHardLine(m_paragraph);
        m_sentence = m_paragraph;
        m_next = m_paragraph;
        reportProgress(m_paragraph);
    }

    void closeParagraph(qsizetype end)
    {
        closeSentence(end);
        const quint64 sentences = std::exchange(m_sentencesOfParagraph, 0);
        const bool isBlank = !m_hasInk && !hasInk(end);
        m_hasInk = false;
        m_isExact = false;
        m_counts.numberOfSentences += sentences;
        const bool isCounted = !isBlank && m_rules.areEnoughSentences(sentences);
        if constexpr (isReporting)
            m_report->addParagraph(m_paragraph, end, isCounted);
        if (!isCounted)
            return;
        m_counts.numberOfParagraphs += 1;
        m_counts.numberOfIndentedParagraphs += m_text.utf16()[m_paragraph] == u'\t' ? 1 : 0;
    }

    void closeSentence(qsizetype end)
    {
        if (end == m_sentence)
            return;
        const CountingReason reason = judgeSentence(end);
        m_sentencesOfParagraph += reason == CountingReason::Sentence ? 1 : 0;
        if constexpr (isReporting)
            m_report->addSentence(m_sentence, end, reason);
        m_isExact = m_scanner.isInsideWord(end);
        m_hasCounted = false;
        m_hasLettered = false;
        m_sentence = end;
    }

    [[nodiscard]] CountingReason judgeSentence(qsizetype end)
    {
        const QStringView sentence = m_text.sliced(m_sentence, end - m_sentence);
        if (m_isExact || m_scanner.isInsideWord(end)) {
            if (!m_counter.m_plain)
                m_counter.m_plain.emplace();
            return m_counter.m_plain->judgeSentence(sentence, m_rules);
        }
        if (m_rules.sentencesNeedTerminalPunctuation
            && !FixedRules::endsWithTerminalPunctuationMark(sentence))
            return CountingReason::NoEndPunctuation;
        if (m_hasCounted || hasCountedWord(end))
            return CountingReason::Sentence;
        if (!m_hasLettered && !hasLetter(end))
            return CountingReason::NoWord;
        return m_rules.areLoneUnitsCounted() ? CountingReason::Sentence
                                             : CountingReason::OnlySingleCharacters;
    }

    // Whether the open sentence has a word for every reader in this window and before end.
    [[nodiscard]] bool hasCountedWord(qsizetype end)
    {
        TextMasks &masks = m_scanner.masks();
        return contains(m_sentence, end, [&](qsizetype index) {
            // What lies across the start of the sentence is not in it.
            const qsizetype start = m_sentence - m_scanner.start();
            const quint64 inside = ~TextMasks::rangeMask(index, start, start + 1);
            return masks.word(Fact::Counted, index) | (masks.word(Fact::CountedAcross, index) & inside);
        });
    }

    [[nodiscard]] bool hasLetter(qsizetype end)
    {
        TextMasks &masks = m_scanner.masks();
        return contains(m_sentence, end, [&](qsizetype index) { return masks.word(Fact::Lettered, index); });
    }

    // Whether the open paragraph has more than white space in this window and before end.
    [[nodiscard]] bool hasInk(qsizetype end)
    {
        const TextMasks &masks = m_scanner.masks();
        return contains(
            m_paragraph, end, [&](qsizetype index) { return ~masks.word(CharacterClass::White, index); });
    }

    // Whether the window has a bit in [start, end), positions of the text.
    template <typename BitsOf>
    [[nodiscard]] bool contains(qsizetype start, qsizetype end, BitsOf &&bitsOf) const
    {
        const qsizetype from = std::max(start, m_scanner.start()) - m_scanner.start();
        const qsizetype to = std::min(end, m_scanner.end()) - m_scanner.start();
        return from < to && TextMasks::first(from, to, bitsOf) < to;
    }

    [[nodiscard]] qsizetype textPosition(quint64 bits, qsizetype index) const
    {
        return m_scanner.start() + index * TextMasks::bitsPerWord + std::countr_zero(bits);
    }

    void reportProgress(qsizetype position) const
    {
        if (m_progress)
            m_progress(position);
    }

    TextCounter &m_counter;
    WordScanner &m_scanner;
    QStringView m_text;
    const TextRules &m_rules;
    const Progress &m_progress;
    ItemReport *m_report;
    QBYWordCounterStats m_counts;
    qsizetype m_paragraph = 0; // where the open paragraph starts
    qsizetype m_sentence = 0; // where the open sentence starts
    qsizetype m_line = 0; // where the open hard line starts; only for m_report
    qsizetype m_next = 0; // nothing before ends a sentence
    quint64 m_sentencesOfParagraph = 0;
    // What the windows before had of the open sentence and paragraph.
    bool m_hasCounted = false;
    bool m_hasLettered = false;
    bool m_hasInk = false;
    bool m_isExact = false; // the open sentence starts where its words may differ from those of the text
};

QBYWordCounterStats TextCounter::count(
    QStringView text, const TextRules &rules, const Progress &progress, ItemReport *report)
{
    return report ? Pass<true>(*this, text, rules, progress, report).run()
                  : Pass<false>(*this, text, rules, progress, nullptr).run();
}

QBYWordCounterStats TextCounter::countParagraph(
    QStringView text, const Paragraph &paragraph, const TextRules &rules)
{
    return count(text.sliced(paragraph.start, paragraph.length), rules);
}

quint64 TextCounter::numberOfWords(QStringView text, const TextRules &rules)
{
    return count(text, rules).numberOfWords;
}

quint64 TextCounter::numberOfSentences(QStringView text, const TextRules &rules)
{
    return count(text, rules).numberOfSentences;
}

quint64 TextCounter::numberOfParagraphs(QStringView text, const TextRules &rules)
{
    return count(text, rules).numberOfParagraphs;
}

quint64 TextCounter::numberOfParagraphsIndented(QStringView text, const TextRules &rules)
{
    return count(text, rules).numberOfIndentedParagraphs;
}
