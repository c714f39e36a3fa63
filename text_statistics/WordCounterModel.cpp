// SPDX-License-Identifier: MIT
#include "text_statistics/WordCounterModel.h"

#include "platform/segmentation/Paragraphs.h"
#include "text_statistics/MeasuringSurface.h"
#include "text_statistics/WordCounterStatStringFormatter.h"

namespace {

using Formatter = WordCounterStatStringFormatter;

/// By Statistic.
constexpr std::array<QString (*)(qint64 style, quint64 count), statisticCount> formatters{
    Formatter::formattedWordCountStringForStyle, Formatter::formattedCharacterCountStringForStyle,
    Formatter::formattedCharacterCountIncludingWhitespaceStringForStyle,
    Formatter::formattedSentencesCountStringForStyle, Formatter::formattedLineCountStringForStyle,
    Formatter::formattedHardLineBreakCountStringForStyle, Formatter::formattedParagraphCountStringForStyle,
    Formatter::formattedIndentedParagraphCountStringForStyle};

} // namespace

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
    if (m_memory) {
        m_stats = countNewParagraphs(text, rules);
        return;
    }
    if (m_pieces.hasThreads() && text.length() >= PieceCounters::minLengthForThreads) {
        m_stats = countOnThreads(text, rules);
        return;
    }
    const quint64 lines = MeasuringSurface::shared().numberOfLines(text, rules.page, halfOfProgress(0));
    m_stats = m_counter.count(text.string(), rules.text, halfOfProgress(text.length()));
    m_stats.numberOfLines = lines;
}

QBYWordCounterStats WordCounterModel::countNewParagraphs(
    const AttributedString &text, const CountingRules &rules)
{
    const double columnWidth = MeasuringSurface::shared().columnWidthOn(rules.page);
    return m_memory->count(text, rules.text, columnWidth,
        [&](std::span<CountedPiece> pieces) { countPieces(text, rules, columnWidth, pieces); });
}

QBYWordCounterStats WordCounterModel::countOnThreads(const AttributedString &text, const CountingRules &rules)
{
    constexpr qsizetype minPieceLength = 65'536; // UTF-16 code units
    std::vector<CountedPiece> pieces;
    for (qsizetype start = 0, end = 0; start < text.length(); start = end) {
        while (end < text.length() && end - start < minPieceLength)
            end = paragraphAt(text.string(), end).end();
        pieces.push_back({start, end});
    }
    countPieces(text, rules, MeasuringSurface::shared().columnWidthOn(rules.page), pieces);
    QBYWordCounterStats sum;
    for (const CountedPiece &piece : pieces)
        sum += piece.counts;
    return sum;
}

void WordCounterModel::countPieces(const AttributedString &text, const CountingRules &rules,
    double columnWidth, std::span<CountedPiece> pieces)
{
    // Only these are counted; the others are known.
    qsizetype known = text.length();
    for (const CountedPiece &piece : pieces)
        known -= piece.end - piece.start;
    TextCounter::Progress progress;
    if (m_progress)
        progress = [this, known](qsizetype counted) { m_progress(known + counted); };
    m_pieces.count(
        {text, columnWidth}, rules.text, pieces, {m_counter, MeasuringSurface::shared().engine()}, progress);
}

void WordCounterModel::startThreads(int threads)
{
    m_pieces.startThreads(threads, MeasuringSurface::shared().engine().fonts());
}

// Layout and counting are two passes over the text; each reports half of the progress.
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
    const qint64 style = m_formattedStringStyle;
    if (style != 0 && style != shortStyle)
        return;
    for (std::size_t i = 0; i < statisticCount; ++i)
        m_strings[i] = formatters[i](style, m_stats.*statisticTable[i].count);
}
