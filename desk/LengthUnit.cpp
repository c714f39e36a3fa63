// SPDX-License-Identifier: MIT
#include "desk/LengthUnit.h"

#include "platform/printing/Paper.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>

#include <cmath>

namespace {

/// Arabic digits would order what is between two numbers from right to left, and so swap width and height in
/// a window from left to right.
QString isolatedNumber(const QString &number)
{
    if (QGuiApplication::isRightToLeft() || QLocale().zeroDigit() == u"0")
        return number;
    constexpr QChar leftToRightMark(0x200E);
    return leftToRightMark + number + leftToRightMark;
}

} // namespace

LengthUnit::LengthUnit(bool isMetric)
    : m_isMetric(isMetric)
    , m_perInch(isMetric ? millimetresPerInch : 1)
{
}

LengthUnit LengthUnit::ofUser()
{
    return LengthUnit(QLocale().measurementSystem() == QLocale::MetricSystem);
}

QString LengthUnit::suffix() const
{
    return m_isMetric ? QCoreApplication::translate("LengthUnit", " mm")
                      : QCoreApplication::translate("LengthUnit", " in");
}

QString LengthUnit::numberText(double points) const
{
    // Whole millimetres, as printing systems round papers to points; two digits of an inch.
    const double factor = m_isMetric ? 1 : 100;
    const double number = std::round(fromInches(points / pointsPerInch) * factor) / factor;
    const QString text = QLocale().toString(number, 'g', QLocale::FloatingPointShortest);
    return isolatedNumber(text);
}
