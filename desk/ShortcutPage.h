// SPDX-License-Identifier: MIT
// ShortcutPage is the page on which the user has the desktop count the selected text when keys are pressed;
// how the desktop stores that is left to platform/shortcuts.
// Thread: main; the desktop's settings are read and written on a thread of their own.  Owner: the stack of
// pages, as a Qt child.
#pragma once

#include "platform/shortcuts/DesktopShortcut.h"
#include "platform/system/BackgroundWork.h"

#include <QScrollArea>

#include <functional>
#include <memory>
#include <optional>

namespace Ui {
class ShortcutPage;
}

class ShortcutPage : public QScrollArea {
    Q_OBJECT

public:
    /// Shows how to bind the command by hand where shortcut is null.
    ShortcutPage(std::shared_ptr<DesktopShortcut> shortcut, const ShortcutCommand &command);
    ~ShortcutPage() override;

    /// Shows all of the page.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    /// The user may have changed the keys in the desktop's own settings meanwhile.
    bool event(QEvent *event) override;

private:
    /// What the desktop has answered.
    struct Answer {
        QKeySequence keys = {}; ///< that start the count now
        QString user = {}; ///< what else the wanted keys do, so that they were not bound
        QString failure = {};
    };

    void switchOnOrOff(bool isOn);
    void changeKeys();
    void bind(const QKeySequence &keys);
    void refresh();
    /// The switch is disabled until the desktop has answered.
    void change(std::function<Answer(DesktopShortcut &)> function, const QKeySequence &wanted = {});
    /// Calls the function on a thread, asks the desktop for the keys and shows the answer; forgets what was
    /// asked before.
    void ask(std::function<Answer(DesktopShortcut &)> function, const QKeySequence &wanted = {});
    void show(const Answer &answer, const QKeySequence &wanted);

    const std::shared_ptr<DesktopShortcut> m_shortcut;
    QKeySequence m_boundKeys;
    std::optional<BackgroundWork<Answer>> m_work;
    std::unique_ptr<Ui::ShortcutPage> m_ui;
};
