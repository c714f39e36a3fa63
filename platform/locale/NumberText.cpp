// SPDX-License-Identifier: MIT
#include "platform/locale/NumberText.h"

#include <unicode/numberformatter.h>
#include <unicode/rbnf.h>

#include <limits>

QString decimalText(double number, int maxFractionDigits)
{
    using namespace icu::number;
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString text = NumberFormatter::withLocale(icu::Locale::getRoot())
                                        .precision(Precision::maxFraction(maxFractionDigits))
                                        .roundingMode(UNUM_ROUND_HALFEVEN)
                                        .grouping(UNUM_GROUPING_OFF)
                                        .formatDouble(number, status)
                                        .toString(status);
    if (U_FAILURE(status))
        return QString::number(number, 'f', maxFractionDigits);
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

struct SpelledOutNumber::Format {
    icu::RuleBasedNumberFormat rules;
};

SpelledOutNumber::SpelledOutNumber(const QString &localeIdentifier)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale locale(localeIdentifier.toLatin1().constData());
    auto format =
        std::make_unique<Format>(Format{icu::RuleBasedNumberFormat(icu::URBNF_SPELLOUT, locale, status)});
    if (U_SUCCESS(status))
        m_format = std::move(format);
}

SpelledOutNumber::~SpelledOutNumber() = default;

std::optional<QString> SpelledOutNumber::text(quint64 number) const
{
    if (!m_format || number > static_cast<quint64>(std::numeric_limits<qint64>::max()))
        return std::nullopt;
    icu::UnicodeString text;
    UErrorCode status = U_ZERO_ERROR;
    icu::FieldPosition noField(icu::FieldPosition::DONT_CARE);
    m_format->rules.format(static_cast<int64_t>(number), text, noField, status);
    if (U_FAILURE(status) || text.isEmpty())
        return std::nullopt;
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}
