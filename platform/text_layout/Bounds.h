// SPDX-License-Identifier: MIT
// Numbers of documents made safe for arithmetic.
// Thread: any.
#pragma once

#include <algorithm>
#include <cmath>

/// The nearest number from least to most; 0, or the end nearest to it, for what is no number.
inline double bounded(double value, double least, double most)
{
    return std::clamp(std::isnan(value) ? 0.0 : value, least, most);
}
