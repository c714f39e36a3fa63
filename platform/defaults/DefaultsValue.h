// SPDX-License-Identifier: MIT
// DefaultsValue is one value of a preference suite, and how each kind of value reads as another kind.
// Thread: any; a value.
#pragma once

#include <QString>

#include <variant>

/// Exactly these four kinds are stored, and each comes back as the kind it was written as.
using DefaultsValue = std::variant<bool, qint64, double, QString>;

/// A value under its key.
struct DefaultsEntry {
    QString key;
    DefaultsValue value;
};

// Text may have been written by hand, so every conversion of text skips leading white space, takes what it
// understands and ignores the rest. The decimal point is '.', whatever the user's locale.

/// A number that is not 0. Text that begins with Y, y, T, t, or with a sign and zeros, each optional, and
/// then a digit from 1 to 9.
bool boolValue(const DefaultsValue &value);

/// A double loses its fraction; text gives its leading decimal integer, or 0. Beyond the range of 64 bits the
/// nearest bound.
qint64 integerValue(const DefaultsValue &value);

/// Text gives the longest leading decimal number with optional fraction and exponent, or 0. Never infinite
/// and never NaN: beyond the range of a double the nearest finite one.
double doubleValue(const DefaultsValue &value);
