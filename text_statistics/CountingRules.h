// SPDX-License-Identifier: MIT
// CountingRules is everything that a count depends on besides the text and the fonts. The same rules and the
// same text give the same numbers in any process and on any thread.
// Thread: any; values. localeIdentifier must be callable from the thread that counts.
#pragma once

#include <QSizeF>
#include <QString>
#include <QStringView>

#include <functional>
#include <optional>

/// The rules for words, sentences and paragraphs.
struct TextRules {
    /// Called for every word that the locale may decide about, so that a count follows a change of locale. A
    /// snapshot for another process returns a fixed identifier.
    std::function<QString()> localeIdentifier;
    /// The minimum number of sentences in a paragraph that counts; 0 or more.
    qint64 minimumSentencesOfParagraph = 0;
    /// Whether a sentence counts only if it ends in a full stop, question mark or exclamation mark.
    bool sentencesNeedTerminalPunctuation = false;

    /// Asks for the locale once, so that any thread may count by the rules and all of them count alike.
    void fixLocale();

    /// Whether a word of one UTF-16 code unit counts at this moment; a, I, O and x always do.
    [[nodiscard]] bool areLoneUnitsCounted() const;
    /// word: as Segmenter finds it.
    [[nodiscard]] bool isWordCounted(QStringView word) const;
    [[nodiscard]] bool areEnoughSentences(quint64 sentencesOfParagraph) const;
};

/// The page on which lines are measured, in points of the measuring surface.
struct PageRules {
    std::optional<QString> paperName; ///< as in printer descriptions; absent if the paper has no name
    QSizeF paperSize;
    double leftMargin = 0;
    double rightMargin = 0;
    // Only pages depend on these two.
    double topMargin = 72;
    double bottomMargin = 72;
    double scale = 1; ///< the surface's backing scale factor; the margins have already been divided by it
    /// Points; the width of the column to use if the margins leave none. Absent: the column of the surface's
    /// previous count.
    std::optional<double> columnBefore{};
};

/// The width of the column between the margins, in points; absent if they leave none.
std::optional<double> columnWidthOf(const PageRules &page);

struct CountingRules {
    TextRules text;
    PageRules page;
};

/// From the user's current preferences and locale.
TextRules currentTextRules();

/// The paper and the margins of the user's current preferences. May ask the printing system, and may replace
/// a preferred paper that the printer lacks. Main thread.
PageRules currentPageRules();

/// Both of them. Main thread.
CountingRules currentCountingRules();
