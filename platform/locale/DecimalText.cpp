// SPDX-License-Identifier: MIT
#include "platform/locale/DecimalText.h"

#include <unicode/numberformatter.h>

QString decimalText(double number, int mostFractionDigits)
{
    using namespace icu::number;
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString text = NumberFormatter::withLocale(icu::Locale::getRoot())
                                        .precision(Precision::maxFraction(mostFractionDigits))
                                        .roundingMode(UNUM_ROUND_HALFEVEN)
                                        .grouping(UNUM_GROUPING_OFF)
                                        .formatDouble(number, status)
                                        .toString(status);
    if (U_FAILURE(status))
        return QString::number(number, 'f', mostFractionDigits);
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}
