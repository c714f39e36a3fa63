// SPDX-License-Identifier: MIT
// XfceShortcut binds keys in the settings of Xfce (Settings › Keyboard › Application Shortcuts), with
// xfconf-query.
// Thread: as DesktopShortcut.
#pragma once

#include "platform/shortcuts/DesktopShortcut.h"

class XfceShortcut : public DesktopShortcut {
public:
    explicit XfceShortcut(const ShortcutCommand &command);

    [[nodiscard]] QString desktop() const override;
    [[nodiscard]] Result<QKeySequence, QString> keys() override;
    [[nodiscard]] QString userOf(const QKeySequence &keys) override;
    Failure bind(const QKeySequence &keys) override;
    Failure unbind() override;

private:
    const QStringList m_words;
};
