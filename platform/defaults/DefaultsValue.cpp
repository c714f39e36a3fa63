// SPDX-License-Identifier: MIT
#include "platform/defaults/DefaultsValue.h"

#include <QLocale>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

template <typename... Calls>
struct Overloaded : Calls... {
    using Calls::operator()...;
};
template <typename... Calls>
Overloaded(Calls...) -> Overloaded<Calls...>;

bool isDigit(QChar unit)
{
    return unit >= u'0' && unit <= u'9';
}

bool isSign(QChar unit)
{
    return unit == u'+' || unit == u'-';
}

QStringView withoutLeadingSpace(QStringView text)
{
    const auto *const first =
        std::find_if_not(text.begin(), text.end(), [](QChar unit) { return unit.isSpace(); });
    return text.sliced(first - text.begin());
}

qsizetype digitsFrom(QStringView text, qsizetype start)
{
    const auto *const first = text.begin() + start;
    return std::find_if_not(first, text.end(), isDigit) - first;
}

bool textAsBool(QStringView text)
{
    text = withoutLeadingSpace(text);
    if (!text.isEmpty() && QStringView(u"YyTt").contains(text.front()))
        return true;
    qsizetype place = !text.isEmpty() && isSign(text.front()) ? 1 : 0;
    while (place < text.size() && text[place] == u'0')
        ++place;
    return place < text.size() && isDigit(text[place]);
}

qint64 textAsInteger(QStringView text)
{
    text = withoutLeadingSpace(text);
    const qsizetype signs = !text.isEmpty() && isSign(text.front()) ? 1 : 0;
    const bool negative = text.startsWith(u'-');
    QByteArray digits = text.first(signs + digitsFrom(text, signs)).toLatin1();
    if (digits.startsWith('+'))
        digits.remove(0, 1); // std::from_chars() takes no plus sign
    qint64 value = 0;
    const auto [end, error] = std::from_chars(digits.constData(), digits.constData() + digits.size(), value);
    if (error == std::errc::result_out_of_range)
        return negative ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
    return value;
}

// How many units at the start of the text are a decimal number.
qsizetype lengthOfNumber(QStringView text)
{
    qsizetype length = !text.isEmpty() && isSign(text.front()) ? 1 : 0;
    const qsizetype whole = digitsFrom(text, length);
    length += whole;
    qsizetype fraction = 0;
    if (length < text.size() && text[length] == u'.') {
        fraction = digitsFrom(text, length + 1);
        if (whole + fraction > 0)
            length += 1 + fraction;
    }
    if (whole + fraction == 0)
        return 0;
    if (length < text.size() && text[length].toLower() == u'e') {
        const qsizetype sign = length + 1 < text.size() && isSign(text[length + 1]) ? 1 : 0;
        const qsizetype exponent = digitsFrom(text, length + 1 + sign);
        if (exponent > 0)
            length += 1 + sign + exponent;
    }
    return length;
}

double textAsDouble(QStringView text)
{
    text = withoutLeadingSpace(text);
    const double value = QLocale::c().toDouble(text.first(lengthOfNumber(text))); // infinite beyond the range
    return std::clamp(value, std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
}

qint64 doubleAsInteger(double value)
{
    constexpr double beyond = 9223372036854775808.0; // 2^63, the first double that does not fit
    if (value >= beyond)
        return std::numeric_limits<qint64>::max();
    if (value < -beyond)
        return std::numeric_limits<qint64>::min();
    return std::isnan(value) ? 0 : static_cast<qint64>(value);
}

} // namespace

bool boolValue(const DefaultsValue &value)
{
    return std::visit(
        Overloaded{[](bool stored) { return stored; }, [](qint64 stored) { return stored != 0; },
            [](double stored) { return stored != 0; },
            [](const QString &stored) { return textAsBool(stored); }},
        value);
}

qint64 integerValue(const DefaultsValue &value)
{
    return std::visit(
        Overloaded{[](bool stored) -> qint64 { return stored ? 1 : 0; }, [](qint64 stored) { return stored; },
            [](double stored) { return doubleAsInteger(stored); },
            [](const QString &stored) { return textAsInteger(stored); }},
        value);
}

double doubleValue(const DefaultsValue &value)
{
    return std::visit(
        Overloaded{[](bool stored) { return stored ? 1.0 : 0.0; },
            [](qint64 stored) { return static_cast<double>(stored); }, [](double stored) { return stored; },
            [](const QString &stored) { return textAsDouble(stored); }},
        value);
}
