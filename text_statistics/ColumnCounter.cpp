// SPDX-License-Identifier: MIT
#include "text_statistics/ColumnCounter.h"

#include "platform/segmentation/GraphemeClusters.h"
#include "text_statistics/ItemReport.h"
#include "text_statistics/PageCounter.h"

QBYWordCounterStats ColumnCounter::count(const AttributedString &text, const TextCounter::Progress &progress)
{
    // Layout and counting are two passes over the text; each reports half of the progress.
    const auto half = [&](qsizetype done) {
        return progress ? TextCounter::Progress(
                   [&progress, done](qsizetype position) { progress((done + position) / 2); })
                        : TextCounter::Progress();
    };
    const quint64 lines = m_engine.countLines(text, m_columnWidth, half(0));
    QBYWordCounterStats stats = m_counter.count(text.string(), m_rules, half(text.length()));
    stats.numberOfLines = lines;
    return stats;
}

FurtherStats ColumnCounter::countFurther(
    const AttributedString &text, const FurtherRules &rules, double columnHeight)
{
    return furtherStatsOf(text, rules, m_engine, m_columnWidth, columnHeight);
}

FurtherStats furtherStatsOf(const AttributedString &text, const FurtherRules &rules, LayoutEngine &engine,
    double columnWidth, double columnHeight)
{
    FurtherStats stats;
    if (rules.shows(FurtherStatistic::Pages))
        stats.numberOfPages = numberOfPages(engine, text, columnWidth, columnHeight);
    if (rules.shows(FurtherStatistic::Graphemes))
        stats.numberOfGraphemes = numberOfGraphemeClusters(text.string());
    return stats;
}

quint64 ColumnCounter::forEachItem(const AttributedString &text, Statistic statistic, const YieldItem &yield,
    const TextCounter::Progress &progress)
{
    return forEachItem(text, 0, text.length(), statistic, yield, progress);
}

quint64 ColumnCounter::forEachItem(const AttributedString &text, qsizetype start, qsizetype end,
    Statistic statistic, const YieldItem &yield, const TextCounter::Progress &progress)
{
    if (statistic == Statistic::Lines)
        return forEachLine(text, start, end, yield, progress);
    const QStringView piece = QStringView(text.string()).sliced(start, end - start);
    ItemReport report(piece, statistic, [&](CountedItem item) {
        item.start += start;
        // Plain text has no styles, so its counter knows none.
        if (item.reason == CountingReason::NoIndent
            && text.attributesAt(item.start).paragraphStyle.firstLineHeadIndent > 0)
            item.reason = CountingReason::IndentOfStyle;
        yield(item);
    });
    const QBYWordCounterStats stats = m_counter.count(piece, m_rules, progress, &report);
    return stats.*statisticTable.at(static_cast<std::size_t>(statistic)).count;
}

quint64 ColumnCounter::forEachLine(const AttributedString &text, qsizetype start, qsizetype end,
    const YieldItem &yield, const TextCounter::Progress &progress)
{
    ItemReport report(text.string(), Statistic::Lines, yield);
    quint64 lines = 0;
    while (start < end) {
        const Paragraph paragraph = paragraphAt(text.string(), start);
        lines += m_engine.countLinesOfParagraph(text, paragraph, m_columnWidth,
            [&](qsizetype from, qsizetype to) { report.addLine(Statistic::Lines, from, to); });
        start = paragraph.end();
        if (progress)
            progress(start);
    }
    return lines;
}
