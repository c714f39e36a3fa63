// SPDX-License-Identifier: MIT
// TrimTrailingNumbersOffDecimal turns a number, such as a paper's width in inches, into a short decimal text.
// Thread: any.
#pragma once

#include <QString>

class TrimTrailingNumbersOffDecimal {
public:
    /// At most three digits after the point, rounded half to even, and always a point: 8.5 is "8.5", 11 is
    /// "11.0", 8.2677 is "8.268". No grouping; the same in every locale.
    static QString trimTrailingNumbersOffFloatingPointNumber(double number);
};
