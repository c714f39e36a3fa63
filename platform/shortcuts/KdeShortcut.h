// SPDX-License-Identifier: MIT
// KdeShortcut binds keys to an action of the application menu with KDE's service of global shortcuts,
// kglobalaccel (System Settings › Shortcuts).
// Thread: as DesktopShortcut.
#pragma once

#include "platform/shortcuts/DesktopShortcut.h"

class KdeShortcut : public DesktopShortcut {
public:
    explicit KdeShortcut(ShortcutCommand command);

    [[nodiscard]] QString desktop() const override;
    [[nodiscard]] Result<QKeySequence, QString> keys() override;
    [[nodiscard]] QString userOf(const QKeySequence &keys) override;
    Failure bind(const QKeySequence &keys) override;
    Failure unbind() override;

private:
    const ShortcutCommand m_command;
};
