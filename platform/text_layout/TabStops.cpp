// SPDX-License-Identifier: MIT
#include "platform/text_layout/TabStops.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double usualInterval = 28;
constexpr double leastInterval = 0.1; // keeps the number of stops in any column small
constexpr double largestInterval = 1e6;

// A position this close to a stop is at it: sums of advances are not exact.
constexpr double tabTolerance = 1e-6;

double usable(double interval)
{
    return interval >= leastInterval ? std::min(interval, largestInterval) : usualInterval;
}

} // namespace

TabStops::TabStops(const ParagraphStyle &style)
    : m_stops(style.tabStops)
    , m_interval(usable(style.defaultTabInterval))
{
}

TabStop TabStops::nextBehind(double position) const
{
    const double least = position + tabTolerance;
    const auto named = std::upper_bound(m_stops.begin(), m_stops.end(), least,
        [](double wanted, const TabStop &stop) { return wanted < stop.position; });
    if (named != m_stops.end() && std::isfinite(named->position))
        return *named;
    return {(std::floor(least / m_interval) + 1) * m_interval, TabAlignment::Left};
}
