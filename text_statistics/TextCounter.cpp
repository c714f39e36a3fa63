// SPDX-License-Identifier: MIT
#include "text_statistics/TextCounter.h"

namespace {

// In American English a single letter or digit is not a word, except a, I, O and x.
bool isWordCounted(QStringView word, const TextRules &rules)
{
    constexpr QStringView countedLetters = u"aAiIoOxX";
    if (word.size() != 1 || countedLetters.contains(word.front()))
        return true;
    return rules.localeIdentifier() != QStringLiteral("en_US");
}

bool isBlank(QStringView text)
{
    return text.trimmed().isEmpty();
}

bool isParagraphCounted(QStringView content, quint64 sentences, const TextRules &rules)
{
    return static_cast<qint64>(sentences) >= rules.minimumSentencesOfParagraph && !isBlank(content);
}

bool isIndented(QStringView content)
{
    return content.startsWith(u'\t');
}

bool endsWithMark(QStringView text, char16_t mark)
{
    QStringView trimmed = text.trimmed();
    if (trimmed.endsWith(u'"') && !trimmed.endsWith(mark))
        trimmed.chop(1);
    return trimmed.endsWith(mark);
}

} // namespace

QBYWordCounterStats TextCounter::count(QStringView text, const TextRules &rules, const Progress &progress)
{
    QBYWordCounterStats counts;
    forEachParagraph(text, [&](const Paragraph &paragraph) {
        counts += countParagraph(text, paragraph, rules);
        if (progress)
            progress(paragraph.end());
    });
    return counts;
}

QBYWordCounterStats TextCounter::countParagraph(
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
    counts.numberOfParagraphs = isParagraphCounted(content, counts.numberOfSentences, rules) ? 1 : 0;
    counts.numberOfIndentedParagraphs = isIndented(content) ? counts.numberOfParagraphs : 0;
    return counts;
}

quint64 TextCounter::numberOfWords(QStringView text, const TextRules &rules)
{
    quint64 words = 0;
    forEachParagraph(
        text, [&](const Paragraph &paragraph) { words += wordsOf(paragraph.content(text), rules); });
    return words;
}

quint64 TextCounter::numberOfSentences(QStringView text, const TextRules &rules)
{
    quint64 sentences = 0;
    forEachParagraph(
        text, [&](const Paragraph &paragraph) { sentences += sentencesOf(paragraph.content(text), rules); });
    return sentences;
}

quint64 TextCounter::numberOfParagraphs(QStringView text, const TextRules &rules)
{
    quint64 paragraphs = 0;
    forEachParagraph(text, [&](const Paragraph &paragraph) {
        const QStringView content = paragraph.content(text);
        paragraphs += isParagraphCounted(content, sentencesOf(content, rules), rules) ? 1 : 0;
    });
    return paragraphs;
}

quint64 TextCounter::numberOfParagraphsIndented(QStringView text, const TextRules &rules)
{
    quint64 paragraphs = 0;
    forEachParagraph(text, [&](const Paragraph &paragraph) {
        const QStringView content = paragraph.content(text);
        if (isIndented(content) && isParagraphCounted(content, sentencesOf(content, rules), rules))
            ++paragraphs;
    });
    return paragraphs;
}

bool TextCounter::isSentenceCounted(QStringView sentence, const TextRules &rules)
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

quint64 TextCounter::wordsOf(QStringView content, const TextRules &rules)
{
    quint64 words = 0;
    m_segmenter.forEachWord(content, [&](QStringView word) {
        words += isWordCounted(word, rules) ? 1 : 0;
        return true;
    });
    return words;
}

quint64 TextCounter::sentencesOf(QStringView content, const TextRules &rules)
{
    quint64 sentences = 0;
    m_segmenter.forEachSentence(content, [&](QStringView sentence) {
        sentences += isSentenceCounted(sentence, rules) ? 1 : 0;
        return true;
    });
    return sentences;
}

quint64 FixedRules::numberOfCharactersNotIncludingWhiteSpace(QStringView text)
{
    quint64 characters = 0;
    for (const QChar unit : text)
        characters += unit.isSpace() ? 0 : 1;
    return characters;
}

quint64 FixedRules::numberOfHardLineBreaks(QStringView text)
{
    quint64 lines = 0;
    const char16_t *units = text.utf16();
    bool isLineOpen = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isFirstOfPair = units[i] == u'\r' && i + 1 < text.size() && units[i + 1] == u'\n';
        isLineOpen = isFirstOfPair || !isLineEnd(units[i]);
        lines += isLineOpen ? 0 : 1;
    }
    return lines + (isLineOpen ? 1 : 0);
}

bool FixedRules::endsWithPeriod(QStringView text)
{
    return endsWithMark(text, u'.');
}

bool FixedRules::endsWithQuestionMark(QStringView text)
{
    return endsWithMark(text, u'?');
}

bool FixedRules::endsWithExclamationPoint(QStringView text)
{
    return endsWithMark(text, u'!');
}

bool FixedRules::endsWithTerminalPunctuationMark(QStringView text)
{
    return endsWithPeriod(text) || endsWithQuestionMark(text) || endsWithExclamationPoint(text);
}
