// SPDX-License-Identifier: MIT
// Numbers as short decimal texts, the same in every locale.
// Thread: any.
#pragma once

#include <QString>

/// At most the given number of digits (0 to 15) behind a ".", the nearest such value of the number's shortest
/// decimal form, ties to the even digit; no trailing zeros, no grouping, ASCII digits: 8.2677 is "8.268" with
/// three digits, 11.0 is "11".
QString decimalText(double number, int mostFractionDigits);
