// SPDX-License-Identifier: MIT
// "quillbay preferences": prints, sets and resets the preferences, by the names of their table.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "command/FirstLaunchStep.h"
#include "command/PreferenceText.h"
#include "platform/defaults/FaultText.h"
#include "platform/system/StandardOutput.h"
#include "preferences/QBYUserDefaultsController.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using Rows = std::vector<const EditablePreference *>;

Rows allRows()
{
    Rows rows;
    for (const EditablePreference &row : editablePreferences())
        rows.push_back(&row);
    return rows;
}

QByteArray nameOf(const EditablePreference &row)
{
    return {row.name.data(), row.name.size()};
}

int reportUnknown(const QByteArray &name)
{
    reportError(CommandText::tr("no preference is called '%1'; 'quillbay preferences' lists them")
                    .arg(QString::fromUtf8(printableName(name))));
    return wrongUsageStatus;
}

void reportProblem(const EditablePreference &row, const QString &problem)
{
    reportError(QString::fromUtf8(nameOf(row) + ": " + printableName(problem.toUtf8())));
}

/// The exit status.
int store(const EditablePreference &row, const DefaultsValue &value)
{
    if (setValue(row, value))
        return 0;
    const UserDefaults &suite = QBYUserDefaultsController::sharedUserDefaults();
    const QString fault = faultText(suite.writeFault().value_or(QString()));
    reportError(
        CommandText::tr("%1: cannot be written: %2; check the permissions and the free space of its folder")
            .arg(QString::fromUtf8(printableName(suite.path())), fault));
    return 1;
}

int set(const EditablePreference &row, const QByteArray &text)
{
    const Result<DefaultsValue, QString> value = parseValue(row, QString::fromLocal8Bit(text));
    if (value)
        return store(row, value.value());
    reportProblem(row, value.error());
    return wrongUsageStatus;
}

int reset(const Rows &rows)
{
    const PrinterAnswer printer = PrintSettings::shared().printer();
    int status = 0;
    for (const EditablePreference *const row : rows) {
        const std::optional<DefaultsValue> value = defaultValueOf(*row, printer);
        if (!value)
            reportProblem(*row,
                CommandText::tr("its default is unknown while the printer does not answer; retry later"));
        status = std::max(status, value ? store(*row, *value) : 1);
    }
    return status;
}

QByteArray table(const Rows &rows)
{
    qsizetype width = 0;
    for (const EditablePreference *const row : rows)
        width = std::max(width, row->name.size());
    QByteArray text;
    for (const EditablePreference *const row : rows)
        text += nameOf(*row).leftJustified(width) + "  " + printableValue(*row) + '\n';
    return text;
}

QByteArray json(const Rows &rows)
{
    QByteArrayList members;
    for (const EditablePreference *const row : rows)
        members.append('"' + nameOf(*row) + "\":" + jsonValue(*row));
    return '{' + members.join(',') + "}\n";
}

/// Wrong combinations, with their message; empty if all is right.
QString misuseOf(const CommandWords &words)
{
    const bool resets = words.switches.contains("reset");
    const bool resetsAll = words.switches.contains("reset-all");
    if (resets && resetsAll)
        return CommandText::tr("--reset and --reset-all cannot be combined");
    if ((resets || resetsAll) && words.switches.contains("json"))
        return CommandText::tr("--json only prints");
    if (resets && words.operands.isEmpty())
        return CommandText::tr("--reset needs a name");
    if (resetsAll && !words.operands.isEmpty())
        return CommandText::tr("--reset-all takes no names");
    if (!resets && words.operands.size() > 2)
        return CommandText::tr("one name and one value at a time");
    if (words.operands.size() == 2 && words.switches.contains("json"))
        return CommandText::tr("--json only prints");
    return {};
}

int run(const CommandWords &words)
{
    if (words.switches.contains("reset-all"))
        return reset(allRows());
    const bool setsValue = !words.switches.contains("reset") && words.operands.size() == 2;
    Rows rows;
    for (const QByteArray &name : setsValue ? words.operands.first(1) : words.operands) {
        const EditablePreference *const row = editablePreferenceNamed(QString::fromLocal8Bit(name));
        if (!row)
            return reportUnknown(name);
        rows.push_back(row);
    }
    if (words.switches.contains("reset"))
        return reset(rows);
    if (setsValue)
        return set(*rows.front(), words.operands.last());
    if (words.switches.contains("json"))
        return printText(json(rows.empty() ? allRows() : rows));
    return printText(rows.empty() ? table(allRows()) : printableValue(*rows.front()) + '\n');
}

} // namespace

int runPreferencesCommand(const CommandWords &words)
{
    if (const QString misuse = misuseOf(words); !misuse.isEmpty())
        return reportWrongUsage("preferences", misuse);
    const bool prints = words.operands.size() < 2 && !words.switches.contains("reset")
        && !words.switches.contains("reset-all");
    if (prints)
        runFirstLaunchStep();
    else // setting a value will report that it cannot be stored
        QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    return run(words);
}
