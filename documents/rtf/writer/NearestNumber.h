// SPDX-License-Identifier: MIT
// NearestNumber is a length in the units that RTF counts it in, and whether it says the length exactly.
// Thread: any; a value.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

struct NearestNumber {
    int number = 0; ///< of 16 bits with its sign, all that RTF 1.9.1 promises a number
    bool isExact = false;
};

/// What is no number is 0.
inline NearestNumber nearestNumber(double points, int unitsPerPoint)
{
    const double units = std::isnan(points) ? 0 : std::round(points * unitsPerPoint);
    const auto number = static_cast<int>(std::clamp<double>(units, INT16_MIN, INT16_MAX));
    return {number, static_cast<double>(number) / unitsPerPoint == points};
}

inline constexpr int twipsPerPoint = 20;
inline constexpr int halfPointsPerPoint = 2;
