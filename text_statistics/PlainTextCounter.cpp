// SPDX-License-Identifier: MIT
#include "text_statistics/PlainTextCounter.h"

#include "text_statistics/FixedRules.h"

namespace {

// In American English a single letter or digit is not a word, except a, I, O and x.
bool isWordCounted(QStringView word, const TextRules &rules)
{
    if (word.size() != 1 || isEnglishWordOfOneLetter(word.utf16()[0]))
        return true;
    return rules.areLoneUnitsCounted();
}

bool isBlank(QStringView text)
{
    return text.trimmed().isEmpty();
}

} // namespace

QBYWordCounterStats PlainTextCounter::count(QStringView text, const TextRules &rules)
{
    QBYWordCounterStats counts;
    forEachParagraph(
        text, [&](const Paragraph &paragraph) { counts += countParagraph(text, paragraph, rules); });
    return counts;
}

QBYWordCounterStats PlainTextCounter::countParagraph(
    QStringView text, const Paragraph &paragraph, const TextRules &rules)
{
    const QStringView content = paragraph.content(text);
    const QStringView whole = text.sliced(paragraph.start, paragraph.length);
    QBYWordCounterStats counts;
    counts.numberOfWords = wordsOf(content, rules);
    counts.numberOfCharacters = FixedRules::numberOfCharactersNotIncludingWhiteSpace(content);
    counts.numberOfCharactersIncludingWhitespace = static_cast<quint64>(whole.size());
    counts.numberOfSentences = sentencesOf(content, rules);
    counts.numberOfHardLineBreaks = FixedRules::numberOfHardLineBreaks(whole);
    const bool isCounted = rules.areEnoughSentences(counts.numberOfSentences) && !isBlank(content);
    counts.numberOfParagraphs = isCounted ? 1 : 0;
    counts.numberOfIndentedParagraphs = isCounted && content.startsWith(u'\t') ? 1 : 0;
    return counts;
}

bool PlainTextCounter::isSentenceCounted(QStringView sentence, const TextRules &rules)
{
    if (rules.sentencesNeedTerminalPunctuation && !FixedRules::endsWithTerminalPunctuationMark(sentence))
        return false;
    bool hasWord = false;
    m_segmenter.forEachWord(sentence, [&](QStringView word) {
        hasWord = isWordCounted(word, rules);
        return !hasWord;
    });
    return hasWord;
}

quint64 PlainTextCounter::wordsOf(QStringView content, const TextRules &rules)
{
    quint64 words = 0;
    m_segmenter.forEachWord(content, [&](QStringView word) {
        words += isWordCounted(word, rules) ? 1 : 0;
        return true;
    });
    return words;
}

quint64 PlainTextCounter::sentencesOf(QStringView content, const TextRules &rules)
{
    quint64 sentences = 0;
    m_segmenter.forEachSentence(content, [&](QStringView sentence) {
        sentences += isSentenceCounted(sentence, rules) ? 1 : 0;
        return true;
    });
    return sentences;
}
