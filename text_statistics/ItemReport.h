// SPDX-License-Identifier: MIT
// ItemReport hands on what the counters find for one statistic, item by item, while they count. It decides
// nothing that changes a count, and stores no items.
// Thread: that of the count.  Owner: the code that asks for the items; of one count.
#pragma once

#include "text_statistics/CountedItem.h"

#include <QStringView>

class ItemReport {
public:
    /// text: must live until the count has finished. yield: called for every item, in the order of the text;
    /// the items do not overlap.
    ItemReport(QStringView text, Statistic statistic, YieldItem yield)
        : m_text(text)
        , m_statistic(statistic)
        , m_yield(std::move(yield))
    {
    }

    [[nodiscard]] bool wants(Statistic statistic) const { return statistic == m_statistic; }

    // Called by the counters in the order of the text, for a statistic that is wanted or not. start, end:
    // UTF-16 code units from the start of the text.
    void addWord(qsizetype start, qsizetype end, const TextRules &rules);
    /// Characters that are all white space, or all are not.
    void addCharacters(qsizetype start, qsizetype end, bool areWhite);
    /// reason: of a sentence that may be blank.
    void addSentence(qsizetype start, qsizetype end, CountingReason reason);
    /// A line as laid out or between hard breaks, with its line end.
    void addLine(Statistic statistic, qsizetype start, qsizetype end);
    /// end: before its separator. isCounted: as one of all paragraphs.
    void addParagraph(qsizetype start, qsizetype end, bool isCounted);
    /// The whole text has been counted.
    void finish();

private:
    void add(qsizetype start, qsizetype end, CountingReason reason) const;
    void addGap(qsizetype end);
    void finishRun();

    QStringView m_text;
    Statistic m_statistic;
    YieldItem m_yield;
    qsizetype m_gap = 0; // where the last word ends
    // The open run of characters.
    qsizetype m_runStart = 0;
    qsizetype m_runEnd = 0;
    bool m_isRunWhite = false;
};
