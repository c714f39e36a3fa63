// SPDX-License-Identifier: MIT
#include "platform/shortcuts/GSettingsShortcut.h"

#include "platform/shortcuts/Accelerator.h"
#include "platform/shortcuts/GVariantText.h"
#include "platform/shortcuts/SettingsProgram.h"

#include <algorithm>

namespace {

Result<QByteArray, QString> gsettings(const QStringList &words)
{
    return runSettingsProgram(QStringLiteral("gsettings"), words);
}

QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

bool hasKeys(const QString &value, const QKeySequence &keys)
{
    const QStringList accelerators = stringsInGVariant(value);
    return std::any_of(accelerators.begin(), accelerators.end(),
        [&](const QString &accelerator) { return keysOfAccelerator(accelerator) == keys; });
}

} // namespace

GSettingsShortcut::GSettingsShortcut(const GSettingsLayout &layout, const ShortcutCommand &command)
    : m_layout(layout)
    , m_title(command.title)
    , m_words(command.words)
{
}

QString GSettingsShortcut::desktop() const
{
    return latin1(m_layout.desktop);
}

QString GSettingsShortcut::schemaOf(const QString &item) const
{
    return latin1(m_layout.itemSchema) + u':' + latin1(m_layout.itemFolder) + item + u'/';
}

QString GSettingsShortcut::valueIn(const QString &item, const char *key) const
{
    const Result<QByteArray, QString> value = gsettings({QStringLiteral("get"), schemaOf(item), latin1(key)});
    return value ? QString::fromUtf8(value.value()) : QString();
}

DesktopShortcut::Failure GSettingsShortcut::set(
    const QString &item, const char *key, const QString &value) const
{
    const Result<QByteArray, QString> result =
        gsettings({QStringLiteral("set"), schemaOf(item), latin1(key), value});
    return result ? Failure() : result.error();
}

Result<QStringList, QString> GSettingsShortcut::items() const
{
    if (!m_layout.listSchema)
        return QStringList{latin1(m_layout.newItem)};
    const Result<QByteArray, QString> list =
        gsettings({QStringLiteral("get"), latin1(m_layout.listSchema), latin1(m_layout.listKey)});
    if (!list)
        return list.error();
    QStringList items = stringsInGVariant(QString::fromUtf8(list.value()));
    for (QString &item : items) {
        if (m_layout.listsPaths && item.startsWith(QLatin1String(m_layout.itemFolder)))
            item = item.mid(latin1(m_layout.itemFolder).size()).section(u'/', 0, 0);
    }
    return items;
}

QStringList GSettingsShortcut::ownAmong(const QStringList &items) const
{
    QStringList own;
    for (const QString &item : items) {
        if (isCommandLineOf(stringsInGVariant(valueIn(item, m_layout.commandKey)).value(0), m_words))
            own.append(item);
    }
    return own;
}

QString GSettingsShortcut::newItem(const QStringList &others) const
{
    QString item = latin1(m_layout.newItem);
    for (int number = 0; latin1(m_layout.newItem).contains(QLatin1String("%1")); ++number) {
        item = latin1(m_layout.newItem).arg(number);
        if (!others.contains(item))
            break;
    }
    return item;
}

DesktopShortcut::Failure GSettingsShortcut::setItems(const QStringList &items) const
{
    if (!m_layout.listSchema)
        return std::nullopt;
    QStringList entries = items;
    for (QString &entry : entries) {
        if (m_layout.listsPaths)
            entry = latin1(m_layout.itemFolder) + entry + u'/';
    }
    // The default of every desktop is an empty list.
    const Result<QByteArray, QString> result = entries.isEmpty()
        ? gsettings({QStringLiteral("reset"), latin1(m_layout.listSchema), latin1(m_layout.listKey)})
        : gsettings({QStringLiteral("set"), latin1(m_layout.listSchema), latin1(m_layout.listKey),
            gvariantOf(entries)});
    return result ? Failure() : result.error();
}

Result<QKeySequence, QString> GSettingsShortcut::keys()
{
    const Result<QStringList, QString> all = items();
    if (!all)
        return all.error();
    for (const QString &item : ownAmong(all.value())) {
        const QKeySequence keys = keysOfAccelerator(stringsInGVariant(valueIn(item, "binding")).value(0));
        if (!keys.isEmpty())
            return keys;
    }
    return QKeySequence();
}

QString GSettingsShortcut::userOf(const QKeySequence &keys)
{
    const Result<QStringList, QString> listed = items();
    const QStringList all = listed ? listed.value() : QStringList();
    const QStringList own = ownAmong(all);
    for (const QString &item : all) {
        if (!own.contains(item) && hasKeys(valueIn(item, "binding"), keys))
            return stringsInGVariant(valueIn(item, "name")).value(0);
    }
    for (const char *const schema : m_layout.otherSchemas) {
        const Result<QByteArray, QString> list =
            gsettings({QStringLiteral("list-recursively"), latin1(schema)});
        const QStringList lines = list ? QString::fromUtf8(list.value()).split(u'\n') : QStringList();
        for (const QString &line : lines) {
            if (hasKeys(line.section(u' ', 2), keys))
                return line.section(u' ', 1, 1).replace(u'-', u' ');
        }
    }
    return {};
}

DesktopShortcut::Failure GSettingsShortcut::bind(const QKeySequence &keys)
{
    const Result<QStringList, QString> all = items();
    if (!all)
        return all.error();
    const QStringList own = ownAmong(all.value());
    const QString item = own.isEmpty() ? newItem(all.value()) : own.first();
    const QString accelerator = acceleratorOf(keys);
    const QString binding =
        m_layout.hasManyKeys ? gvariantOf(QStringList{accelerator}) : gvariantOf(accelerator);
    // The list last: some desktops read the items when it changes.
    if (Failure failure = set(item, "name", gvariantOf(m_title)))
        return failure;
    if (Failure failure = set(item, m_layout.commandKey, gvariantOf(commandLineOf(m_words))))
        return failure;
    if (Failure failure = set(item, "binding", binding))
        return failure;
    return all.value().contains(item) ? Failure() : setItems(all.value() + QStringList{item});
}

DesktopShortcut::Failure GSettingsShortcut::unbind()
{
    const Result<QStringList, QString> all = items();
    if (!all)
        return all.error();
    const QStringList own = ownAmong(all.value());
    QStringList left = all.value();
    for (const QString &item : own)
        left.removeAll(item);
    if (left.size() != all.value().size()) {
        if (Failure failure = setItems(left))
            return failure;
    }
    for (const QString &item : own) {
        const Result<QByteArray, QString> result =
            gsettings({QStringLiteral("reset-recursively"), schemaOf(item)});
        if (!result)
            return result.error();
    }
    return std::nullopt;
}
