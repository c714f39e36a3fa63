// SPDX-License-Identifier: MIT
// CountingRules is everything besides the text and the fonts that a count rests on, as a value: whoever has
// the same rules and the same text gets the same numbers, in any process and on any thread. Thread: any;
// values. localeIdentifier must be callable from the thread that counts.
#pragma once

#include <QSizeF>
#include <QString>

#include <functional>
#include <optional>

/// What words, sentences and paragraphs are.
struct TextRules {
    /// Asked anew for every word that it may decide about, so that a count follows a locale changed
    /// meanwhile. A snapshot for another process gives a fixed identifier.
    std::function<QString()> localeIdentifier;
    /// How many sentences make a paragraph; 0 or more.
    qint64 minimumSentencesOfParagraph = 0;
    /// Whether a sentence counts only if it ends in a full stop, question mark or exclamation mark.
    bool sentencesNeedTerminalPunctuation = false;
};

/// The page on which lines are measured, in points of the measuring surface.
struct PageRules {
    std::optional<QString> paperName; ///< as printer descriptions call it; absent where the paper has no name
    QSizeF paperSize;
    double leftMargin = 0;
    double rightMargin = 0;
    double scale = 1; ///< the surface's backing scale factor, by which the margins are divided already
    /// The width of the column that is in force where the margins leave none. Absent: that of the surface's
    /// own count before.
    std::optional<double> columnBefore{};
};

/// The width of the column between the margins, in points; absent where they leave none.
std::optional<double> columnWidthOf(const PageRules &page);

struct CountingRules {
    TextRules text;
    PageRules page;
};

/// The user's preferences and current locale, as they are now.
TextRules currentTextRules();

/// The paper and the margins of the user's preferences, as they are now. May ask the printing system, and may
/// repair the preference where it names a paper that the printer lacks. Main thread.
PageRules currentPageRules();

/// Both of them. Main thread.
CountingRules currentCountingRules();
