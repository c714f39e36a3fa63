// SPDX-License-Identifier: MIT
// PreferenceText is the form in which the values of preferences are printed and typed.
// Thread: main, as ranges and papers are those of the print settings.
#pragma once

#include "platform/defaults/DefaultsValue.h"
#include "platform/system/Result.h"
#include "preferences/EditablePreferences.h"

#include <QByteArray>
#include <QString>

/// "on" or "off", a number, the name of a paper ("unset" if none was ever chosen), or a margin such as
/// "0.25in". parseValue() reads all of them but "unset".
QByteArray printableValue(const EditablePreference &preference);

/// A JSON value: true or false, a number (margins in inches), a string, or null for a paper that was never
/// chosen.
QByteArray jsonValue(const EditablePreference &preference);

/// Switches also as yes, no, true, false, 1 and 0; margins in inches (in, the default), millimetres (mm),
/// centimetres (cm) or points (pt); papers in any case. The error says what is wrong and what to type.
Result<DefaultsValue, QString> parseValue(const EditablePreference &preference, const QString &text);
