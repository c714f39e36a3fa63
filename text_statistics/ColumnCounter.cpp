// SPDX-License-Identifier: MIT
#include "text_statistics/ColumnCounter.h"

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
