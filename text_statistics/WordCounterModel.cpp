// SPDX-License-Identifier: MIT
#include "text_statistics/WordCounterModel.h"

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
    const quint64 lines = MeasuringSurface::shared().numberOfLines(text, rules.page, halfOfProgress(0));
    m_stats = m_counter.count(text.string(), rules.text, halfOfProgress(text.length()));
    m_stats.numberOfLines = lines;
}

QBYWordCounterStats WordCounterModel::countNewParagraphs(
    const AttributedString &text, const CountingRules &rules)
{
    MeasuringSurface &surface = MeasuringSurface::shared();
    const double columnWidth = surface.columnWidthOn(rules.page);
    const auto countPiece = [&](qsizetype start, qsizetype end) {
        const QStringView piece = QStringView(text.string()).sliced(start, end - start);
        QBYWordCounterStats counts = m_counter.count(piece, rules.text);
        counts.numberOfLines = surface.engine().countLines(text, columnWidth, start, end);
        if (m_progress)
            m_progress(end);
        return counts;
    };
    return m_memory->count(text, rules.text, columnWidth, countPiece);
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
