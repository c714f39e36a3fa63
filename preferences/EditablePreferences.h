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
struct NumberAccessors {
    qint64 (*get)();
    void (*set)(qint64 number);
    qint64 max;
    qint64 min = 0;
};
/// A text that StandardPage::fromText() reads.
struct StandardPageAccessors {
    QString (*get)();
    void (*set)(const QString &text);
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
    bool isVertical = false; ///< at the top or the bottom
};

struct EditablePreference {
    Preference preference;
    QLatin1StringView name; ///< as it is typed, such as "show-lines"
    std::variant<SwitchAccessors, NumberAccessors, PaperAccessors, MarginAccessors, StandardPageAccessors>
        accessors;
};

/// In the order in which they are listed. Values that are set in this order have the values that were asked
/// for, although setting the character count also sets the one including white space.
std::span<const EditablePreference> editablePreferences();

/// Null if no preference has that name.
const EditablePreference *editablePreferenceNamed(QStringView name);
/// preference: not HasAppBeenOpened, which nobody sets.
const EditablePreference &editablePreference(Preference preference);

/// The value in force; absent only for a paper that was never chosen. A boolean for a switch, an integer for
/// a number, a text for a paper or a standard page, inches as a double for a margin.
std::optional<DefaultsValue> valueOf(const EditablePreference &preference);

/// value: of the kind that valueOf() returns, otherwise nothing happens. Ranges are left to the caller. False
/// if the value could not be written.
bool setValue(const EditablePreference &preference, const DefaultsValue &value);

/// What the first launch writes, or what holds without having been written; absent for paper and margins
/// while the printer does not answer.
std::optional<DefaultsValue> defaultValueOf(
    const EditablePreference &preference, const PrinterAnswer &printer);

/// The margins leave a column at least this wide.
inline constexpr double minColumnInInches = 0.5;

/// The largest margin, in inches, that leaves a column beside the opposite one; 0 or more. paperSide: points,
/// the width for the left and right margins, the height for the others.
double maxMargin(double paperSide, double oppositeMargin);

/// Whether the margins, in inches, leave such a column. paperWidth: points.
bool leaveColumn(double leftMargin, double rightMargin, double paperWidth);
