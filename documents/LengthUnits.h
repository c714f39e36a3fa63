// SPDX-License-Identifier: MIT
// LengthUnits names the units in which RTF and Word documents count lengths.
// Thread: any; constants.
#pragma once

inline constexpr double twipsPerPoint = 20;
inline constexpr double halfPointsPerPoint = 2;
