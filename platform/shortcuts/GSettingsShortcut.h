// SPDX-License-Identifier: MIT
// GSettingsShortcut binds keys in the settings of desktops that keep custom shortcuts in GSettings: GNOME,
// Cinnamon and MATE. It runs gsettings.
// Thread: as DesktopShortcut.
#pragma once

#include "platform/shortcuts/DesktopShortcut.h"

/// How one desktop stores custom shortcuts. Each is an item with a path of its own.
struct GSettingsLayout {
    const char *desktop;
    const char
        *listSchema; ///< has the list of the items; null if the desktop uses every item below itemFolder
    const char *listKey;
    const char *itemSchema;
    const char *itemFolder; ///< where the paths of items begin
    bool listsPaths; ///< the list has paths rather than the last component of each
    const char *newItem; ///< the last component of the path; with "%1", it is numbered
    const char *commandKey;
    bool hasManyKeys; ///< the value of "binding" is a list
    std::initializer_list<const char *> otherSchemas; ///< with shortcuts of the desktop itself
};

class GSettingsShortcut : public DesktopShortcut {
public:
    GSettingsShortcut(const GSettingsLayout &layout, const ShortcutCommand &command);

    [[nodiscard]] QString desktop() const override;
    [[nodiscard]] Result<QKeySequence, QString> keys() override;
    [[nodiscard]] QString userOf(const QKeySequence &keys) override;
    Failure bind(const QKeySequence &keys) override;
    Failure unbind() override;

private:
    /// The last components of their paths.
    [[nodiscard]] Result<QStringList, QString> items() const;
    /// Those that start the command.
    [[nodiscard]] QStringList ownAmong(const QStringList &items) const;
    [[nodiscard]] QString newItem(const QStringList &others) const;
    [[nodiscard]] Failure setItems(const QStringList &items) const;
    [[nodiscard]] QString schemaOf(const QString &item) const;
    [[nodiscard]] QString valueIn(const QString &item, const char *key) const;
    Failure set(const QString &item, const char *key, const QString &value) const;

    const GSettingsLayout &m_layout;
    const QString m_title;
    const QStringList m_words;
};

extern const GSettingsLayout gnomeLayout;
extern const GSettingsLayout cinnamonLayout;
extern const GSettingsLayout mateLayout;
