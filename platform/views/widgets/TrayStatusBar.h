// SPDX-License-Identifier: MIT
// TrayStatusBar is the desktop's tray as a bar of status items: by status notifier items where somebody on
// the session bus shows them, by the X11 tray otherwise. On a desktop with neither, items are simply not
// there. Thread: main.  Owner: main() of a program with windows, behind its QApplication.
#pragma once

#include "platform/views/StatusItem.h"

class TrayStatusBar final : public StatusBar {
public:
    [[nodiscard]] std::unique_ptr<StatusItemInBar> addItem(std::shared_ptr<StatusItem> item) override;
};
