// SPDX-License-Identifier: MIT
// CountedItem is one thing in a text that a statistic counted, or that it looked at and did not count, with
// the reason. ItemReport hands them on while a text is counted.
// Thread: any; values.
#pragma once

#include "text_statistics/CountingRules.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QString>

#include <functional>

/// Why something counts or does not. The reasons apply to the statistics named above them.
enum class CountingReason {
    // Words.
    Word,
    SingleCharacter,
    NoLetterOrDigit,
    // Characters.
    NotWhiteSpace,
    WhiteSpace,
    // Characters including white space.
    AnyCharacter,
    // Sentences; Blank also of paragraphs and indented paragraphs.
    Sentence,
    Blank,
    NoEndPunctuation,
    NoWord,
    OnlySingleCharacters,
    // Lines and hard line breaks.
    LineEnd,
    TextEnd,
    ColumnFull,
    // Paragraphs; TooFewSentences also of indented paragraphs.
    Paragraph,
    TooFewSentences,
    // Indented paragraphs.
    Tab,
    NoIndent,
    OtherWhiteSpace,
    IndentOfStyle,
};
inline constexpr std::size_t countingReasonCount = 20;

/// Whether the reason is one to count.
bool isCounted(CountingReason reason);

/// A stable name for machine-readable output, as "single-character".
const char *identifierOf(CountingReason reason);

/// The reason in a short sentence without a full stop, in the language of the program, that goes on from the
/// name of the statistic and a colon. rules: those of the count.
QString explanationOf(CountingReason reason, const TextRules &rules);

struct CountedItem {
    Statistic statistic = Statistic::Words;
    qsizetype start = 0; ///< UTF-16 code units from the start of the text
    qsizetype length = 0; ///< UTF-16 code units
    CountingReason reason = CountingReason::Word;

    [[nodiscard]] qsizetype end() const { return start + length; }
    [[nodiscard]] bool isCounted() const { return ::isCounted(reason); }
    /// What the item adds to the count: characters are reported in runs, everything else one by one.
    [[nodiscard]] quint64 count() const;
    bool operator==(const CountedItem &) const = default;
};

using YieldItem = std::function<void(const CountedItem &item)>;
