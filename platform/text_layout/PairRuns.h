// SPDX-License-Identifier: MIT
// PairRuns cuts a paragraph into runs whose advances are sums over pairs of characters, and finds the table
// of pairs for each. A paragraph in one style and font is one run; others are cut as Itemizer cuts them.
// Thread: one at a time.  Owner: PairText.
#pragma once

#include "platform/segmentation/CodeUnitTable.h"
#include "platform/text_layout/Itemizer.h"
#include "platform/text_layout/PairAdvances.h"

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <tuple>

/// A stretch of text that is shaped together, or with controls and tabs between its parts.
struct PairRun {
    qsizetype start = 0; ///< UTF-16 code units from the start of the paragraph
    qsizetype end = 0;
    PairAdvances *pairs = nullptr;
    double pointsPerUnit = 0;
    double unitsPerPoint = 0;
    double tracking = 0; ///< font units
};

class PairRuns {
public:
    PairRuns(FontLibrary &fonts, Shaper &shaper);

    /// Returns false if the paragraph's first characters cannot be added up. Both must live until the last
    /// runAt(). isOneRun: assume that all characters of the paragraph are in one font and script; where that
    /// is wrong, the table of pairs does not support them.
    bool setParagraph(const AttributedString &text, const Paragraph &paragraph, bool isOneRun);

    /// The run that contains a position (0 to the length - 1); null if the text up to there cannot be added
    /// up. Valid until the next call.
    const PairRun *runAt(qsizetype position);

    /// Tells that earlier positions are not needed any more.
    void discardBefore(qsizetype position);

private:
    // A table, or the amount of text that asked for it in vain.
    struct Table {
        std::unique_ptr<PairAdvances> pairs;
        qsizetype demand = 0; // UTF-16 code units
        quint64 lastUse = 0;
    };
    // The chain is null if the font is not its first one; then characters are known to be in the font.
    using TableKey = std::tuple<FontChain *, const ShapingStyle *, PairAdvances::Text>;

    /// Whether all characters are plain, tabs or controls; the rest is not worth cutting into runs.
    bool isPlain(QStringView content);
    bool addOneRun(const AttributedString &text, const Paragraph &paragraph);
    [[nodiscard]] std::optional<quint32> findScript(QStringView content) const;
    bool addNextRun();
    [[nodiscard]] PairRun makeRun(const TextRun &run, PairAdvances::Text text);
    PairAdvances *tableFor(TableKey key, qsizetype length);
    void discardLeastUsed();

    Itemizer m_itemizer;
    Shaper &m_shaper;
    CodeUnitTable<bool> m_isPlain;
    std::map<TableKey, Table> m_tables;
    size_t m_tableCount = 0; // of those with pairs
    quint64 m_uses = 0;

    std::deque<PairRun> m_runs;
    QStringView m_content; // of the paragraph
    qsizetype m_runsEnd = 0; // itemized up to here
    bool m_isItemized = false;

    // The style of the last paragraph that was one run.
    std::optional<FontAttributes> m_font;
    QString m_language;
    quint32 m_script = 0;
    PairRun m_oneRun;
};
