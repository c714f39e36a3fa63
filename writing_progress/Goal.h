// SPDX-License-Identifier: MIT
// Goals and limits, which a user sets for a document or for a folder with several.
// Thread: any; values.
#pragma once

#include "text_statistics/QBYWordCounterStats.h"

#include <QDate>

#include <array>
#include <optional>

/// What a goal or a limit can be for.
inline constexpr std::array goalStatistics{
    Statistic::Words, Statistic::Characters, Statistic::CharactersIncludingWhitespace, Statistic::Lines};

inline constexpr quint64 maxGoal = 1'000'000'000;

struct Goal {
    enum class Span { Total, Day };

    Statistic statistic = Statistic::Words;
    quint64 amount = 0; ///< 1 to maxGoal
    Span span = Span::Total;
    std::optional<QDate> deadline = {}; ///< of a total; the last day
    bool countsAddedOnly = false; ///< of a day; otherwise deletions count against it

    bool operator==(const Goal &) const = default;
};

struct Limit {
    Statistic statistic = Statistic::Words;
    quint64 amount = 0; ///< that is still allowed; 1 to maxGoal

    bool operator==(const Limit &) const = default;
};

/// What the user has in mind with a document or a folder.
struct Plan {
    std::optional<Goal> goal = {};
    std::optional<Limit> limit = {};

    bool operator==(const Plan &) const = default;
};
