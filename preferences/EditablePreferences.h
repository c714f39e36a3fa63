// SPDX-License-Identifier: MIT
// EditablePreferences is the table of the preferences that a user can set: the names by which a person types
// them, their ranges and defaults. It reads and writes them with QBYUserDefaultsController.
// Thread: main, as the ranges and defaults depend on the print settings.
#pragma once

#include "platform/defaults/DefaultsValue.h"
#include "platform/printing/PrintSettings.h"
#include "preferences/PreferenceTable.h"

#include <QLatin1StringView>
#include <QString>

#include <optional>
#include <span>
#include <variant>

struct SwitchAccessors {
    bool (*get)();
    void (*set)(bool isOn);
};
/// A whole number, from 0.
struct NumberAccessors {
    qint64 (*get)();
    void (*set)(qint64 number);
    qint64 max;
};
struct PaperAccessors {
    std::optional<QString> (*get)();
    void (*set)(const QString &paperName);
};
/// Inches.
struct MarginAccessors {
    double (*get)();
    void (*set)(double inches);
    double (*getOpposite)(); ///< the margin at the other edge
};

struct EditablePreference {
    Preference preference;
    QLatin1StringView name; ///< as it is typed, such as "show-lines"
    std::variant<SwitchAccessors, NumberAccessors, PaperAccessors, MarginAccessors> accessors;
};

/// In the order in which they are listed. Values that are set in this order have the values that were asked
/// for, although setting the character count also sets the one including white space.
std::span<const EditablePreference> editablePreferences();

/// Null if no preference has that name.
const EditablePreference *editablePreferenceNamed(QStringView name);
/// preference: not HasAppBeenOpened, which nobody sets.
const EditablePreference &editablePreference(Preference preference);

/// The value in force; absent only for a paper that was never chosen. A boolean for a switch, an integer for
/// a number, a text for a paper, inches as a double for a margin.
std::optional<DefaultsValue> valueOf(const EditablePreference &preference);

/// value: of the kind that valueOf() returns, otherwise nothing happens. Ranges are left to the caller. False
/// if the value could not be written.
bool setValue(const EditablePreference &preference, const DefaultsValue &value);

/// What the first launch writes; absent for paper and margins while the printer does not answer.
std::optional<DefaultsValue> defaultValueOf(
    const EditablePreference &preference, const PrinterAnswer &printer);

/// The margins leave a column at least this wide.
inline constexpr double minColumnInInches = 0.5;

/// The largest margin, in inches, that leaves a column beside the opposite one; 0 or more. paperWidth:
/// points.
double maxMargin(double paperWidth, double oppositeMargin);

/// Whether the margins, in inches, leave such a column. paperWidth: points.
bool leaveColumn(double leftMargin, double rightMargin, double paperWidth);
