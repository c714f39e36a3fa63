// SPDX-License-Identifier: MIT
#include "text_statistics/TrimTrailingNumbersOffDecimal.h"

#include "platform/locale/NumberText.h"

QString TrimTrailingNumbersOffDecimal::trimTrailingNumbersOffFloatingPointNumber(double number)
{
    constexpr int mostFractionDigits = 3;
    const QString text = decimalText(number, mostFractionDigits);
    return text.contains(u'.') ? text : text + QStringLiteral(".0");
}
