// SPDX-License-Identifier: MIT
#include "text_statistics/WordCounterModel.h"

#include "text_statistics/MeasuringSurface.h"
#include "text_statistics/WordCounterStatStringFormatter.h"

void WordCounterModel::setAttributedStringToCount(
    const std::optional<AttributedString> &attributedStringToCount)
{
    m_attributedStringToCount = attributedStringToCount;
    updateStatsUsingAttributedString(true);
}

void WordCounterModel::setDocXMetaDataToFormat(const std::optional<QBYDocxMetaData> &docXMetaDataToFormat)
{
    m_docXMetaDataToFormat = docXMetaDataToFormat;
    updateStatsUsingAttributedString(false);
}

void WordCounterModel::updateStatsUsingAttributedString(bool usingAttributedString)
{
    if (usingAttributedString)
        countAttributedString();
    else
        copyDocXMetaData();
    doUpdateDisplayStrings();
}

void WordCounterModel::countAttributedString()
{
    const AttributedString text = m_attributedStringToCount.value_or(AttributedString());
    const CountingRules rules = m_rules();
    const quint64 lines = MeasuringSurface::shared().numberOfLines(text, rules.page, halfOfProgress(0));
    const TextCounts counts = m_counter.count(text.string(), rules.text, halfOfProgress(text.length()));
    m_stats = {
        .numberOfWords = counts.words,
        .numberOfCharacters = counts.charactersNotIncludingWhiteSpace,
        .numberOfCharactersIncludingWhitespace = counts.characters,
        .numberOfSentences = counts.sentences,
        .numberOfLines = lines,
        .numberOfHardLineBreaks = counts.hardLineBreaks,
        .numberOfParagraphs = counts.paragraphs,
        .numberOfIndentedParagraphs = counts.paragraphsIndented,
    };
}

// Laying out and counting are two passes over the text, told as one.
TextCounter::Progress WordCounterModel::halfOfProgress(qsizetype done) const
{
    if (!m_progress)
        return {};
    return [this, done](qsizetype position) { m_progress((done + position) / 2); };
}

void WordCounterModel::copyDocXMetaData()
{
    if (!m_docXMetaDataToFormat)
        return;
    const QBYDocxMetaData &record = *m_docXMetaDataToFormat;
    m_stats = {
        .numberOfWords = record.numberOfWords,
        .numberOfCharacters = record.numberOfCharacters,
        .numberOfCharactersIncludingWhitespace = record.numberOfCharactersWithWhitespace,
        .numberOfSentences = record.numberOfSentences,
        .numberOfLines = record.numberOfLines,
        .numberOfHardLineBreaks = record.numberOfHardLineBreaks,
        .numberOfParagraphs = record.numberOfParagraphs,
        .numberOfIndentedParagraphs = record.numberOfIndentedParagraphs,
    };
}

void WordCounterModel::updateModelWithPrepopulatedStats(const QBYWordCounterStats &stats)
{
    m_stats = stats;
    doUpdateDisplayStrings();
}

void WordCounterModel::doUpdateDisplayStrings()
{
    using Formatter = WordCounterStatStringFormatter;
    const qint64 style = m_formattedStringStyle;
    if (style != 0 && style != 1)
        return;
    m_strings = {
        .words = Formatter::formattedWordCountStringForStyle(style, m_stats.numberOfWords),
        .characters = Formatter::formattedCharacterCountStringForStyle(style, m_stats.numberOfCharacters),
        .charactersIncludingWhiteSpace = Formatter::formattedCharacterCountIncludingWhitespaceStringForStyle(
            style, m_stats.numberOfCharactersIncludingWhitespace),
        .sentences = Formatter::formattedSentencesCountStringForStyle(style, m_stats.numberOfSentences),
        .lines = Formatter::formattedLineCountStringForStyle(style, m_stats.numberOfLines),
        .hardLineBreaks =
            Formatter::formattedHardLineBreakCountStringForStyle(style, m_stats.numberOfHardLineBreaks),
        .paragraphs = Formatter::formattedParagraphCountStringForStyle(style, m_stats.numberOfParagraphs),
        .indentedParagraphs = Formatter::formattedIndentedParagraphCountStringForStyle(
            style, m_stats.numberOfIndentedParagraphs),
    };
}
