// SPDX-License-Identifier: MIT
// XmlValues reads the values of attributes that the formats of packages have in common.
// Thread: any.
#pragma once

#include <QByteArrayView>

#include <optional>

/// Points, from a number of 1/unitsPerPoint points, or from a number with a unit (mm, cm, in, pt, pc, pi).
/// Clamped to a metre in either direction; absent if the value is invalid.
std::optional<double> pointsOf(std::optional<QByteArrayView> value, double unitsPerPoint = 1);

/// Absent if the value is not a number of 32 bits.
std::optional<int> integerOf(std::optional<QByteArrayView> value, int base = 10);

/// Assigns other to value if other is not absent.
template <typename Value>
void overlayValue(std::optional<Value> &value, const std::optional<Value> &other)
{
    if (other)
        value = other;
}
