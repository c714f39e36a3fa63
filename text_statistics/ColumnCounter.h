// SPDX-License-Identifier: MIT
// ColumnCounter counts texts under fixed rules on any thread, with fonts and break iterators of its own.
// Texts of windows are counted by WordCounterModel.
// Thread: one at a time; any.  Owner: the code that counts; expensive to create, so keep it for the next
// text.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "platform/text_layout/LayoutEngine.h"
#include "text_statistics/CountedItem.h"
#include "text_statistics/FurtherStats.h"
#include "text_statistics/TextCounter.h"
#include "text_statistics/WordRules.h"

class ColumnCounter {
public:
    /// columnWidth: points; see MeasuringSurface::columnWidthOn().
    ColumnCounter(TextRules rules, double columnWidth)
        : m_rules(std::move(rules))
        , m_columnWidth(columnWidth)
    {
    }

    /// What WordCounterModel counts under the same rules. progress: called with a position in UTF-16 code
    /// units up to the text's length.
    [[nodiscard]] QBYWordCounterStats count(
        const AttributedString &text, const TextCounter::Progress &progress = {});

    /// Those of the further counts that the rules show and that need the text. columnHeight: points, of
    /// columnHeightOf().
    [[nodiscard]] FurtherStats countFurther(
        const AttributedString &text, const FurtherRules &rules, double columnHeight);

    /// Puts words and characters by other rules in place of those of count().
    void applyWordRules(const WordRules &rules, const AttributedString &text, QBYWordCounterStats &stats)
    {
        ::applyWordRules(rules, text.string(), m_rules, m_counter, stats);
    }

    /// Counts one statistic, and yields what it counts and what it does not, in the order of the text. The
    /// items add up to the result; none of them is kept.
    quint64 forEachItem(const AttributedString &text, Statistic statistic, const YieldItem &yield,
        const TextCounter::Progress &progress = {});

    /// The same for the paragraphs from start to end (UTF-16 code units); both are where a paragraph starts,
    /// or the end of the text.
    quint64 forEachItem(const AttributedString &text, qsizetype start, qsizetype end, Statistic statistic,
        const YieldItem &yield, const TextCounter::Progress &progress = {});

    [[nodiscard]] const TextRules &rules() const { return m_rules; }

private:
    quint64 forEachLine(const AttributedString &text, qsizetype start, qsizetype end, const YieldItem &yield,
        const TextCounter::Progress &progress);

    const TextRules m_rules;
    const double m_columnWidth;
    TextCounter m_counter;
    LayoutEngine m_engine;
};

/// The same with the engine of another counter.
FurtherStats furtherStatsOf(const AttributedString &text, const FurtherRules &rules, LayoutEngine &engine,
    double columnWidth, double columnHeight);
