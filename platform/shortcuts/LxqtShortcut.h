// SPDX-License-Identifier: MIT
// LxqtShortcut binds keys with the global shortcuts of LXQt (Preferences › Shortcut Keys), over the session
// bus.
// Thread: as DesktopShortcut.
#pragma once

#include "platform/shortcuts/DesktopShortcut.h"

class LxqtShortcut : public DesktopShortcut {
public:
    explicit LxqtShortcut(ShortcutCommand command);

    [[nodiscard]] QString desktop() const override;
    [[nodiscard]] Result<QKeySequence, QString> keys() override;
    [[nodiscard]] QString userOf(const QKeySequence &keys) override;
    Failure bind(const QKeySequence &keys) override;
    Failure unbind() override;

private:
    const ShortcutCommand m_command;
};
