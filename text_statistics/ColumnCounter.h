// SPDX-License-Identifier: MIT
// ColumnCounter counts texts under fixed rules on any thread, with fonts and break iterators of its own.
// Texts of windows are counted by WordCounterModel. Thread: one at a time; any.  Owner: the code that counts;
// expensive to create, so keep it for the next text.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "platform/text_layout/LayoutEngine.h"
#include "text_statistics/TextCounter.h"

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

private:
    const TextRules m_rules;
    const double m_columnWidth;
    TextCounter m_counter;
    LayoutEngine m_engine;
};
