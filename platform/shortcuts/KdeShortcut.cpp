// SPDX-License-Identifier: MIT
#include "platform/shortcuts/KdeShortcut.h"

#include "platform/shortcuts/ServiceCall.h"

#include <QDBusArgument>
#include <QDBusMetaType>

#include <algorithm>

namespace {

// Flags of setShortcut(): the desktop file is there, and the keys are these rather than the stored ones.
constexpr uint isPresent = 2;
constexpr uint setsKeys = 4;

constexpr DesktopService globalShortcuts{"org.kde.kglobalaccel", "/kglobalaccel", "org.kde.KGlobalAccel"};

QList<int> numbersOf(const QVariant &value)
{
    return value.canConvert<QDBusArgument>() ? qdbus_cast<QList<int>>(value.value<QDBusArgument>())
                                             : value.value<QList<int>>();
}

QStringList actionOf(const ShortcutCommand &command)
{
    return {command.desktopFile, command.desktopAction, QStringLiteral("Quillbay"), command.title};
}

} // namespace

KdeShortcut::KdeShortcut(ShortcutCommand command)
    : m_command(std::move(command))
{
    qDBusRegisterMetaType<QList<int>>();
}

QString KdeShortcut::desktop() const
{
    return QStringLiteral("KDE Plasma");
}

Result<QKeySequence, QString> KdeShortcut::keys()
{
    const Result<QVariantList, QString> keys =
        callService(globalShortcuts, "shortcut", {actionOf(m_command)});
    if (!keys)
        return keys.error();
    const QList<int> numbers = numbersOf(keys.value().value(0));
    const auto bound = std::find_if(numbers.begin(), numbers.end(), [](int number) { return number != 0; });
    return bound == numbers.end() ? QKeySequence() : QKeySequence(*bound);
}

QString KdeShortcut::userOf(const QKeySequence &keys)
{
    const Result<QVariantList, QString> action =
        callService(globalShortcuts, "action", {keys[0].toCombined()});
    // The names of component and action, then as users read them.
    const QStringList names = action ? action.value().value(0).toStringList() : QStringList();
    if (names.size() < 4 || (names[0] == m_command.desktopFile && names[1] == m_command.desktopAction))
        return {};
    return names[2] + QStringLiteral(": ") + names[3];
}

DesktopShortcut::Failure KdeShortcut::bind(const QKeySequence &keys)
{
    if (const Result<QVariantList, QString> added =
            callService(globalShortcuts, "doRegister", {actionOf(m_command)});
        !added)
        return added.error();
    const QList<int> wanted{keys[0].toCombined()};
    const Result<QVariantList, QString> bound = callService(globalShortcuts, "setShortcut",
        {actionOf(m_command), QVariant::fromValue(wanted), isPresent | setsKeys});
    if (!bound)
        return bound.error();
    return numbersOf(bound.value().value(0)) == wanted
        ? Failure()
        : QStringLiteral("org.kde.kglobalaccel: did not accept the keys; choose others");
}

DesktopShortcut::Failure KdeShortcut::unbind()
{
    const Result<QVariantList, QString> removed =
        callService(globalShortcuts, "unregister", {m_command.desktopFile, m_command.desktopAction});
    return removed ? Failure() : removed.error();
}
