// SPDX-License-Identifier: MIT
// DesktopShortcut binds one command to keys in the settings of a desktop, by the desktop's own means; which
// keys the user wants is left to the window.
// Thread: any, one at a time; every function waits for programs or the bus, for some seconds at most.
#pragma once

#include "platform/system/Result.h"

#include <QKeySequence>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

/// What the keys start.
struct ShortcutCommand {
    QString title; ///< in the desktop's own list of shortcuts
    QStringList words; ///< the program with its path, and its arguments
    /// Desktops that bind entries of the application menu use this instead of the words.
    QString desktopFile; ///< as "com.example.Program.desktop"
    QString desktopAction; ///< the name of the action in that file
};

class DesktopShortcut {
public:
    /// Why something failed, as a sentence without its full stop.
    using Failure = std::optional<QString>;

    virtual ~DesktopShortcut() = default;

    /// The desktop's name, as users know it.
    [[nodiscard]] virtual QString desktop() const = 0;
    /// The keys that start the command now, whoever has bound them; empty for none.
    [[nodiscard]] virtual Result<QKeySequence, QString> keys() = 0;
    /// What else the desktop does for these keys, for display; empty if they are free.
    [[nodiscard]] virtual QString userOf(const QKeySequence &keys) = 0;
    /// In place of the keys that start the command now. keys: of one chord, and free.
    virtual Failure bind(const QKeySequence &keys) = 0;
    /// Leaves the settings as they were before bind().
    virtual Failure unbind() = 0;
};

/// For the desktop of this session (XDG_CURRENT_DESKTOP); null if it has no settings for shortcuts that a
/// program can change.
std::unique_ptr<DesktopShortcut> shortcutOfCurrentDesktop(ShortcutCommand command);
