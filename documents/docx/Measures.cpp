// SPDX-License-Identifier: MIT
#include "documents/docx/Measures.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>

namespace {

constexpr double longestMeasure = 2'834; // points: a metre
constexpr qsizetype longestNumber = 40;

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
    if (!value || value->size() > longestNumber)
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
    return std::clamp(*points, -longestMeasure, longestMeasure);
}

std::optional<int> integerOf(std::optional<QByteArrayView> value)
{
    if (!value || value->size() > longestNumber)
        return std::nullopt;
    bool isNumber = false;
    const int number = value->trimmed().toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::optional<int> hexadecimalOf(std::optional<QByteArrayView> value)
{
    if (!value || value->size() > longestNumber)
        return std::nullopt;
    bool isNumber = false;
    const int number = value->trimmed().toInt(&isNumber, 16);
    return isNumber ? std::optional(number) : std::nullopt;
}

bool truthOf(std::optional<QByteArrayView> value)
{
    return !value || !(*value == "0" || *value == "false" || *value == "off");
}
