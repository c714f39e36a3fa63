// SPDX-License-Identifier: MIT
// DefaultsValue is a value of a preference suite, with the conversions between kinds of values.
// Thread: any; a value.
#pragma once

#include <QString>

#include <variant>

/// Only these four kinds are stored; each is read as the kind that was written.
using DefaultsValue = std::variant<bool, qint64, double, QString>;

/// A value under its key.
struct DefaultsEntry {
    QString key;
    DefaultsValue value;
};

// Text may have been written by hand, so every conversion of text skips leading white space, takes what it
// understands and ignores the rest. The decimal point is '.' in every locale.

/// A number that is not 0. Text that begins with Y, y, T, t, or with a sign and zeros, each optional, and
/// then a digit from 1 to 9.
bool boolValue(const DefaultsValue &value);

/// A double loses its fraction; text gives its leading decimal integer, or 0. The nearest bound for values
/// beyond 64 bits.
qint64 integerValue(const DefaultsValue &value);

/// Text gives the longest leading decimal number with optional fraction and exponent, or 0. Never infinite or
/// NaN: the nearest finite double for values beyond its range.
double doubleValue(const DefaultsValue &value);
