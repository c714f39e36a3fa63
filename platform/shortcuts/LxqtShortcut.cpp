// SPDX-License-Identifier: MIT
#include "platform/shortcuts/LxqtShortcut.h"

#include "platform/shortcuts/ServiceCall.h"
#include "platform/shortcuts/SettingsProgram.h"

#include <QDBusArgument>

#include <vector>

namespace {

/// A shortcut of the daemon's list.
struct Action {
    qulonglong id = 0;
    QString shortcut;
    QString description;
    QString info; ///< of a command: the command line
};

constexpr DesktopService shortcutKeys{
    "org.lxqt.global_key_shortcuts", "/daemon", "org.lxqt.global_key_shortcuts.daemon"};

Result<std::vector<Action>, QString> actions()
{
    const Result<QVariantList, QString> reply = callService(shortcutKeys, "getAllActions");
    if (!reply)
        return reply.error();
    std::vector<Action> actions;
    if (!reply.value().value(0).canConvert<QDBusArgument>())
        return actions;
    const auto list = reply.value().constFirst().value<QDBusArgument>();
    list.beginMap();
    while (!list.atEnd()) {
        Action action;
        bool isEnabled = false;
        QString type;
        list.beginMapEntry();
        list >> action.id;
        list.beginStructure();
        list >> action.shortcut >> action.description >> isEnabled >> type >> action.info;
        list.endStructure();
        list.endMapEntry();
        actions.push_back(action);
    }
    list.endMap();
    return actions;
}

bool isOwn(const Action &action, const ShortcutCommand &command)
{
    return isCommandLineOf(action.info, command.words);
}

/// Qt's name of the modifier of the Windows key is LXQt's; that of Ctrl is not.
QKeySequence keysOf(QString shortcut)
{
    return {shortcut.replace(QLatin1String("Control"), QLatin1String("Ctrl")), QKeySequence::PortableText};
}

QString shortcutOf(const QKeySequence &keys)
{
    return QKeySequence(keys[0])
        .toString(QKeySequence::PortableText)
        .replace(QLatin1String("Ctrl"), QLatin1String("Control"));
}

} // namespace

LxqtShortcut::LxqtShortcut(ShortcutCommand command)
    : m_command(std::move(command))
{
}

QString LxqtShortcut::desktop() const
{
    return QStringLiteral("LXQt");
}

Result<QKeySequence, QString> LxqtShortcut::keys()
{
    const Result<std::vector<Action>, QString> all = actions();
    if (!all)
        return all.error();
    for (const Action &action : all.value()) {
        if (isOwn(action, m_command))
            return keysOf(action.shortcut);
    }
    return QKeySequence();
}

QString LxqtShortcut::userOf(const QKeySequence &keys)
{
    const Result<std::vector<Action>, QString> all = actions();
    if (!all)
        return {};
    for (const Action &action : all.value()) {
        if (!isOwn(action, m_command) && keysOf(action.shortcut) == keys)
            return action.description.isEmpty() ? action.info : action.description;
    }
    return {};
}

DesktopShortcut::Failure LxqtShortcut::bind(const QKeySequence &keys)
{
    if (Failure failure = unbind())
        return failure;
    const Result<QVariantList, QString> added = callService(shortcutKeys, "addCommandAction",
        {shortcutOf(keys), m_command.words.first(), m_command.words.mid(1), m_command.title});
    if (!added)
        return added.error();
    return added.value().value(0).toString().isEmpty()
        ? QStringLiteral("org.lxqt.global_key_shortcuts: did not accept the keys; choose others")
        : Failure();
}

DesktopShortcut::Failure LxqtShortcut::unbind()
{
    const Result<std::vector<Action>, QString> all = actions();
    if (!all)
        return all.error();
    for (const Action &action : all.value()) {
        if (!isOwn(action, m_command))
            continue;
        if (const Result<QVariantList, QString> removed =
                callService(shortcutKeys, "removeAction", {action.id});
            !removed)
            return removed.error();
    }
    return std::nullopt;
}
