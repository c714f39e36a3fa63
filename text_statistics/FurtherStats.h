// SPDX-License-Identifier: MIT
// FurtherStats are the counts beside the eight statistics: those that need the text are its members, the
// others follow from the eight. Each is counted only where somebody asks for it, and none of them changes the
// eight.
// Thread: any; values. currentFurtherRules() is for the main thread.
#pragma once

#include "preferences/PreferenceTable.h"
#include "preferences/StandardPage.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

struct FurtherStats {
    quint64 numberOfPages = 0; ///< of the paper; the last one may not be full
    quint64 numberOfGraphemes = 0; ///< extended grapheme clusters (UAX #29), white space and line ends too

    bool operator==(const FurtherStats &) const = default;
    FurtherStats &operator+=(const FurtherStats &other);
};

enum class FurtherStatistic : std::size_t { Pages, StandardPages, ReadingTime, SpeakingTime, Graphemes };
inline constexpr std::size_t furtherStatisticCount = 5;

struct FurtherStatisticRow {
    FurtherStatistic statistic;
    std::string_view typedName;
    const char *name; ///< in machine-readable output
    Preference preference; ///< the switch that shows it
};

/// The row of a FurtherStatistic is at the index of its value.
inline constexpr std::array<FurtherStatisticRow, furtherStatisticCount> furtherStatisticTable{{
    {FurtherStatistic::Pages, "pages", "pages", Preference::ShowPages},
    {FurtherStatistic::StandardPages, "standard-pages", "standardPages", Preference::ShowStandardPages},
    {FurtherStatistic::ReadingTime, "reading-time", "readingTime", Preference::ShowReadingTime},
    {FurtherStatistic::SpeakingTime, "speaking-time", "speakingTime", Preference::ShowSpeakingTime},
    {FurtherStatistic::Graphemes, "graphemes", "graphemes", Preference::ShowGraphemes},
}};

/// Whether it is counted in the text, and does not follow from the eight statistics.
constexpr bool needsText(FurtherStatistic statistic)
{
    return statistic == FurtherStatistic::Pages || statistic == FurtherStatistic::Graphemes;
}

/// Absent for a name that is none.
std::optional<FurtherStatistic> furtherStatisticNamed(std::string_view typedName);

/// What these counts depend on besides the text and the CountingRules.
struct FurtherRules {
    std::vector<FurtherStatistic> shown; ///< in their order, each once
    StandardPage standardPage;
    qint64 readingSpeed = 0; ///< words per minute, 1 or more
    qint64 speakingSpeed = 0; ///< words per minute, 1 or more

    [[nodiscard]] bool shows(FurtherStatistic statistic) const;
};

/// From the user's preferences.
FurtherRules currentFurtherRules();

/// Characters including white space or words, by the size of the page; not rounded.
double numberOfStandardPages(const QBYWordCounterStats &stats, const StandardPage &page);

/// Seconds, rounded up. wordsPerMinute: 1 or more.
quint64 secondsFor(quint64 words, qint64 wordsPerMinute);

/// One of them: a number of pages or clusters, or seconds. Those of the text are 0 if they were not counted.
double furtherCount(FurtherStatistic statistic, const QBYWordCounterStats &stats, const FurtherStats &further,
    const FurtherRules &rules);
