// SPDX-License-Identifier: MIT
#include "platform/shortcuts/XfceShortcut.h"

#include "platform/shortcuts/Accelerator.h"
#include "platform/shortcuts/SettingsProgram.h"

#include <algorithm>
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

/// The custom shortcuts of the commands, and those of the window manager, replace all the default ones.
bool isInForce(const Property &property, const std::vector<Property> &all)
{
    const QString name =
        QString(property.name).replace(QLatin1String("/default/"), QLatin1String("/custom/"));
    const QString replacement = name.section(u'/', 0, 2) + QStringLiteral("/override");
    return name == property.name || std::none_of(all.begin(), all.end(), [&](const Property &other) {
        return other.name == replacement && other.value == QLatin1String("true");
    });
}

} // namespace

XfceShortcut::XfceShortcut(const ShortcutCommand &command)
    : m_words(command.words)
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
        if (property.name.startsWith(customCommands()) && isCommandLineOf(property.value, m_words))
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
        if (keysOf(property) == keys && !property.value.isEmpty() && isInForce(property, all.value())
            && !isCommandLineOf(property.value, m_words))
            return property.value;
    }
    return {};
}

DesktopShortcut::Failure XfceShortcut::bind(const QKeySequence &keys)
{
    // Each property is for other keys.
    if (Failure failure = unbind())
        return failure;
    const Result<QByteArray, QString> result = query({QStringLiteral("--property"),
        customCommands() + acceleratorOf(keys), QStringLiteral("--create"), QStringLiteral("--type"),
        QStringLiteral("string"), QStringLiteral("--set"), commandLineOf(m_words)});
    return result ? Failure() : result.error();
}

DesktopShortcut::Failure XfceShortcut::unbind()
{
    const Result<std::vector<Property>, QString> all = properties();
    if (!all)
        return all.error();
    for (const Property &property : all.value()) {
        if (!property.name.startsWith(customCommands()) || !isCommandLineOf(property.value, m_words))
            continue;
        const Result<QByteArray, QString> result =
            query({QStringLiteral("--property"), property.name, QStringLiteral("--reset")});
        if (!result)
            return result.error();
    }
    return std::nullopt;
}
