// SPDX-License-Identifier: MIT
// Texts of characters of all classes, and the rules under which they are counted.
// Thread: one at a time.
#pragma once

#include "text_statistics/CountingRules.h"

#include <QString>

#include <random>
#include <vector>

/// Of a number of variants that differ in everything.
inline constexpr int rulesVariantCount = 12;
TextRules rulesOf(int variant);

/// One character of each combination of classes, of one code unit and of two.
const std::vector<QString> &representatives();

/// At least length code units of the pieces.
QString randomOf(const std::vector<QString> &pieces, std::mt19937 &random, qsizetype length);
