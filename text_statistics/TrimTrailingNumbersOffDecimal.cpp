// SPDX-License-Identifier: MIT
#include "text_statistics/TrimTrailingNumbersOffDecimal.h"

#include "platform/locale/NumberText.h"

QString TrimTrailingNumbersOffDecimal::trimTrailingNumbersOffFloatingPointNumber(double number)
{
    constexpr int maxFractionDigits = 3;
    const QString text = decimalText(number, maxFractionDigits);
    return text.contains(u'.') ? text : text + QStringLiteral(".0");
}
