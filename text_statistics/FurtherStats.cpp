// SPDX-License-Identifier: MIT
#include "text_statistics/FurtherStats.h"

#include "preferences/FurtherPreferences.h"

#include <algorithm>

FurtherStats &FurtherStats::operator+=(const FurtherStats &other)
{
    numberOfPages += other.numberOfPages;
    numberOfGraphemes += other.numberOfGraphemes;
    return *this;
}

std::optional<FurtherStatistic> furtherStatisticNamed(std::string_view typedName)
{
    const auto *const row = std::find_if(furtherStatisticTable.begin(), furtherStatisticTable.end(),
        [typedName](const FurtherStatisticRow &candidate) { return candidate.typedName == typedName; });
    return row == furtherStatisticTable.end() ? std::nullopt : std::optional(row->statistic);
}

bool FurtherRules::shows(FurtherStatistic statistic) const
{
    return std::find(shown.begin(), shown.end(), statistic) != shown.end();
}

FurtherRules currentFurtherRules()
{
    FurtherRules rules{.shown = {},
        .standardPage = FurtherPreferences::standardPage(),
        .readingSpeed = FurtherPreferences::speed(Preference::ReadingSpeed),
        .speakingSpeed = FurtherPreferences::speed(Preference::SpeakingSpeed)};
    for (const FurtherStatisticRow &row : furtherStatisticTable) {
        if (FurtherPreferences::isShown(row.preference))
            rules.shown.push_back(row.statistic);
    }
    return rules;
}

double numberOfStandardPages(const QBYWordCounterStats &stats, const StandardPage &page)
{
    const quint64 count = page.unit == StandardPage::Unit::Words
        ? stats.numberOfWords
        : stats.numberOfCharactersIncludingWhitespace;
    return static_cast<double>(count) / static_cast<double>(page.size);
}

quint64 secondsFor(quint64 words, qint64 wordsPerMinute)
{
    constexpr quint64 secondsPerMinute = 60;
    const auto speed = static_cast<quint64>(wordsPerMinute);
    return words / speed * secondsPerMinute + (words % speed * secondsPerMinute + speed - 1) / speed;
}

double furtherCount(FurtherStatistic statistic, const QBYWordCounterStats &stats, const FurtherStats &further,
    const FurtherRules &rules)
{
    switch (statistic) {
    case FurtherStatistic::Pages:
        return static_cast<double>(further.numberOfPages);
    case FurtherStatistic::StandardPages:
        return numberOfStandardPages(stats, rules.standardPage);
    case FurtherStatistic::ReadingTime:
        return static_cast<double>(secondsFor(stats.numberOfWords, rules.readingSpeed));
    case FurtherStatistic::SpeakingTime:
        return static_cast<double>(secondsFor(stats.numberOfWords, rules.speakingSpeed));
    case FurtherStatistic::Graphemes:
        break;
    }
    return static_cast<double>(further.numberOfGraphemes);
}
