// SPDX-License-Identifier: MIT
#include "documents/package/XmlValues.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double maxLength = 2'834; // points; a metre
constexpr qsizetype maxNumberLength = 40;

struct Unit {
    const char *name;
    double points;
};

constexpr Unit units[]{
    {"pt", 1},
    {"in", 72},
    {"cm", 72 / 2.54},
    {"mm", 72 / 25.4},
    {"pc", 12},
    {"pi", 12},
};

std::optional<double> numberOf(QByteArrayView text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<double> pointsOf(std::optional<QByteArrayView> value, double unitsPerPoint)
{
    if (!value || value->size() > maxNumberLength)
        return std::nullopt;
    const QByteArrayView text = value->trimmed();
    std::optional<double> points = numberOf(text);
    if (points)
        *points /= unitsPerPoint;
    for (const Unit &unit : units) {
        if (!points && text.endsWith(unit.name)) {
            points = numberOf(text.chopped(2));
            if (points)
                *points *= unit.points;
        }
    }
    if (!points)
        return std::nullopt;
    return std::clamp(*points, -maxLength, maxLength);
}

std::optional<int> integerOf(std::optional<QByteArrayView> value, int base)
{
    if (!value || value->size() > maxNumberLength)
        return std::nullopt;
    bool isNumber = false;
    const int number = value->trimmed().toInt(&isNumber, base);
    return isNumber ? std::optional(number) : std::nullopt;
}
