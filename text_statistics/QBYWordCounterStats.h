// SPDX-License-Identifier: MIT
// QBYWordCounterStats is the record of the eight statistics of one text. statisticTable lists them once, in
// the order in which they are sent and shown: code that handles all eight iterates over the table.
// Thread: any; a value.
#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

struct QBYWordCounterStats {
    quint64 numberOfWords = 0;
    quint64 numberOfCharacters = 0; ///< UTF-16 code units without white space
    quint64 numberOfCharactersIncludingWhitespace = 0; ///< UTF-16 code units
    quint64 numberOfSentences = 0;
    quint64 numberOfLines = 0; ///< as laid out on paper
    quint64 numberOfHardLineBreaks = 0; ///< lines between hard breaks: "a" and "a\n" have one each
    quint64 numberOfParagraphs = 0;
    quint64 numberOfIndentedParagraphs = 0;

    bool operator==(const QBYWordCounterStats &) const = default;
    constexpr QBYWordCounterStats &operator+=(const QBYWordCounterStats &other);
};

enum class Statistic : std::size_t {
    Words,
    Characters,
    CharactersIncludingWhitespace,
    Sentences,
    Lines,
    HardLineBreaks,
    Paragraphs,
    IndentedParagraphs,
};
inline constexpr std::size_t statisticCount = 8;

struct StatisticRow {
    Statistic statistic;
    const char *name; ///< in machine-readable output
    quint64 QBYWordCounterStats::*count;
};

/// The row of a Statistic is at the index of its value.
inline constexpr std::array<StatisticRow, statisticCount> statisticTable{{
    {Statistic::Words, "words", &QBYWordCounterStats::numberOfWords},
    {Statistic::Characters, "characters", &QBYWordCounterStats::numberOfCharacters},
    {Statistic::CharactersIncludingWhitespace, "charactersIncludingWhitespace",
        &QBYWordCounterStats::numberOfCharactersIncludingWhitespace},
    {Statistic::Sentences, "sentences", &QBYWordCounterStats::numberOfSentences},
    {Statistic::Lines, "lines", &QBYWordCounterStats::numberOfLines},
    {Statistic::HardLineBreaks, "hardLineBreaks", &QBYWordCounterStats::numberOfHardLineBreaks},
    {Statistic::Paragraphs, "paragraphs", &QBYWordCounterStats::numberOfParagraphs},
    {Statistic::IndentedParagraphs, "indentedParagraphs", &QBYWordCounterStats::numberOfIndentedParagraphs},
}};
static_assert(sizeof(QBYWordCounterStats) == statisticCount * sizeof(quint64));

constexpr QBYWordCounterStats &QBYWordCounterStats::operator+=(const QBYWordCounterStats &other)
{
    for (const StatisticRow &row : statisticTable)
        this->*row.count += other.*row.count;
    return *this;
}

/// The record with these counts, which are in the order of statisticTable, as those of a service's reply.
constexpr QBYWordCounterStats statsFromCounts(const std::array<quint64, statisticCount> &counts)
{
    QBYWordCounterStats stats;
    for (std::size_t i = 0; i < statisticCount; ++i)
        stats.*statisticTable[i].count = counts[i];
    return stats;
}
