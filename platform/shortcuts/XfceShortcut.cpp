// SPDX-License-Identifier: MIT
#include "platform/shortcuts/XfceShortcut.h"

#include "platform/shortcuts/Accelerator.h"
#include "platform/shortcuts/SettingsProgram.h"

#include <vector>

namespace {

/// A property of the channel is named for its keys: "/commands/custom/<Super>e". Before the user changes the
/// first one, only those below "default" exist.
struct Property {
    QString name;
    QString value;
};

QString customCommands()
{
    return QStringLiteral("/commands/custom/");
}

Result<QByteArray, QString> query(const QStringList &words)
{
    return runSettingsProgram(QStringLiteral("xfconf-query"),
        QStringList{QStringLiteral("--channel"), QStringLiteral("xfce4-keyboard-shortcuts")} + words);
}

Result<std::vector<Property>, QString> properties()
{
    const Result<QByteArray, QString> list = query({QStringLiteral("--list"), QStringLiteral("--verbose")});
    if (!list) {
        // A channel that nothing was ever stored in does not exist.
        if (list.error().contains(QLatin1String("does not exist")))
            return std::vector<Property>();
        return list.error();
    }
    std::vector<Property> properties;
    for (const QString &line : QString::fromUtf8(list.value()).split(u'\n', Qt::SkipEmptyParts)) {
        const qsizetype blank = line.indexOf(u' ');
        if (blank > 0)
            properties.push_back({line.left(blank), line.mid(blank).trimmed()});
    }
    return properties;
}

QKeySequence keysOf(const Property &property)
{
    return keysOfAccelerator(property.name.section(u'/', -1));
}

} // namespace

XfceShortcut::XfceShortcut(const ShortcutCommand &command)
    : m_commandLine(commandLineOf(command.words))
{
}

QString XfceShortcut::desktop() const
{
    return QStringLiteral("Xfce");
}

Result<QKeySequence, QString> XfceShortcut::keys()
{
    const Result<std::vector<Property>, QString> all = properties();
    if (!all)
        return all.error();
    for (const Property &property : all.value()) {
        if (property.name.startsWith(customCommands()) && property.value == m_commandLine)
            return keysOf(property);
    }
    return QKeySequence();
}

QString XfceShortcut::userOf(const QKeySequence &keys)
{
    const Result<std::vector<Property>, QString> all = properties();
    if (!all)
        return {};
    // Of the commands and of the window manager.
    for (const Property &property : all.value()) {
        if (keysOf(property) == keys && !property.value.isEmpty() && property.value != m_commandLine)
            return property.value;
    }
    return {};
}

DesktopShortcut::Failure XfceShortcut::bind(const QKeySequence &keys)
{
    // Each property is for other keys.
    if (Failure failure = unbind())
        return failure;
    const Result<QByteArray, QString> result = query(
        {QStringLiteral("--property"), customCommands() + acceleratorOf(keys), QStringLiteral("--create"),
            QStringLiteral("--type"), QStringLiteral("string"), QStringLiteral("--set"), m_commandLine});
    return result ? Failure() : result.error();
}

DesktopShortcut::Failure XfceShortcut::unbind()
{
    const Result<std::vector<Property>, QString> all = properties();
    if (!all)
        return all.error();
    for (const Property &property : all.value()) {
        if (!property.name.startsWith(customCommands()) || property.value != m_commandLine)
            continue;
        const Result<QByteArray, QString> result =
            query({QStringLiteral("--property"), property.name, QStringLiteral("--reset")});
        if (!result)
            return result.error();
    }
    return std::nullopt;
}
