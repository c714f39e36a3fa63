// SPDX-License-Identifier: MIT
#include "text_statistics/PlainTextCounter.h"

#include "text_statistics/FixedRules.h"

#include <utility>

namespace {

bool isBlank(QStringView text)
{
    return text.trimmed().isEmpty();
}

// Where a part of a text starts in it.
qsizetype startOf(QStringView part, QStringView text)
{
    return part.utf16() - text.utf16();
}

void reportCharacters(QStringView text, const Paragraph &paragraph, ItemReport &report)
{
    for (qsizetype at = paragraph.start; at < paragraph.end(); ++at)
        report.addCharacters(at, at + 1, text[at].isSpace());
}

void reportHardLines(QStringView text, const Paragraph &paragraph, ItemReport &report)
{
    qsizetype start = paragraph.start;
    for (qsizetype at = start; at < paragraph.start + paragraph.contentLength; ++at) {
        if (isLineEnd(text[at].unicode()))
            report.addLine(Statistic::HardLineBreaks, std::exchange(start, at + 1), at + 1);
    }
    if (start < paragraph.end())
        report.addLine(Statistic::HardLineBreaks, start, paragraph.end());
}

} // namespace

QBYWordCounterStats PlainTextCounter::count(QStringView text, const TextRules &rules, ItemReport *report)
{
    QBYWordCounterStats counts;
    forEachParagraph(
        text, [&](const Paragraph &paragraph) { counts += countParagraph(text, paragraph, rules, report); });
    if (report)
        report->finish();
    return counts;
}

QBYWordCounterStats PlainTextCounter::countParagraph(
    QStringView text, const Paragraph &paragraph, const TextRules &rules, ItemReport *report)
{
    const QStringView content = paragraph.content(text);
    const QStringView whole = text.sliced(paragraph.start, paragraph.length);
    QBYWordCounterStats counts;
    counts.numberOfWords = wordsOf(text, content, rules, report);
    counts.numberOfCharacters = FixedRules::numberOfCharactersNotIncludingWhiteSpace(content);
    counts.numberOfCharactersIncludingWhitespace = static_cast<quint64>(whole.size());
    counts.numberOfSentences = sentencesOf(text, content, rules, report);
    counts.numberOfHardLineBreaks = FixedRules::numberOfHardLineBreaks(whole);
    const bool isCounted = rules.areEnoughSentences(counts.numberOfSentences) && !isBlank(content);
    counts.numberOfParagraphs = isCounted ? 1 : 0;
    counts.numberOfIndentedParagraphs = isCounted && content.startsWith(u'\t') ? 1 : 0;
    if (report) {
        reportCharacters(text, paragraph, *report);
        reportHardLines(text, paragraph, *report);
        report->addParagraph(paragraph.start, paragraph.start + paragraph.contentLength, isCounted);
    }
    return counts;
}

CountingReason PlainTextCounter::judgeSentence(QStringView sentence, const TextRules &rules)
{
    if (rules.sentencesNeedTerminalPunctuation && !FixedRules::endsWithTerminalPunctuationMark(sentence))
        return CountingReason::NoEndPunctuation;
    CountingReason reason = CountingReason::NoWord;
    m_segmenter.forEachWord(sentence, [&](QStringView word) {
        const bool isWord = rules.isWordCounted(word);
        reason = isWord ? CountingReason::Sentence : CountingReason::OnlySingleCharacters;
        return !isWord;
    });
    return reason;
}

quint64 PlainTextCounter::wordsOf(
    QStringView text, QStringView content, const TextRules &rules, ItemReport *report)
{
    quint64 words = 0;
    m_segmenter.forEachWord(content, [&](QStringView word) {
        words += rules.isWordCounted(word) ? 1 : 0;
        if (report)
            report->addWord(startOf(word, text), startOf(word, text) + word.size(), rules);
        return true;
    });
    return words;
}

quint64 PlainTextCounter::sentencesOf(
    QStringView text, QStringView content, const TextRules &rules, ItemReport *report)
{
    quint64 sentences = 0;
    m_segmenter.forEachSentence(content, [&](QStringView sentence) {
        const CountingReason reason = judgeSentence(sentence, rules);
        sentences += isCounted(reason) ? 1 : 0;
        if (report)
            report->addSentence(startOf(sentence, text), startOf(sentence, text) + sentence.size(), reason);
        return true;
    });
    return sentences;
}
