// SPDX-License-Identifier: MIT
// The values of attributes: lengths, whole numbers and truths (ECMA-376, simple types).
// Thread: any.
#pragma once

#include <QByteArrayView>

#include <optional>

/// Points, from a number of 1/unitsPerPoint points or from a number with one of the units mm, cm, in, pt, pc
/// and pi. No longer than a metre either way; absent for anything else.
std::optional<double> pointsOf(std::optional<QByteArrayView> value, double unitsPerPoint);

inline constexpr double twentieths = 20;
inline constexpr double halves = 2;

/// Absent where it is none, or one of more than 32 bits.
std::optional<int> integerOf(std::optional<QByteArrayView> value);
std::optional<int> hexadecimalOf(std::optional<QByteArrayView> value);

/// Gives value what other has, where it has anything.
template <typename Value>
void overlayValue(std::optional<Value> &value, const std::optional<Value> &other)
{
    if (other)
        value = other;
}

/// An element without the attribute means true.
bool truthOf(std::optional<QByteArrayView> value);
