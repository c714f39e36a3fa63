// SPDX-License-Identifier: MIT
// TrayStatusBar is the desktop's tray: status notifier items if a host for them is on the session bus, the
// X11 tray otherwise. On a desktop with neither, items are invisible.
// Thread: main.  Owner: main() of a program with windows; outlived by its QApplication.
#pragma once

#include "platform/views/StatusItem.h"

class TrayStatusBar final : public StatusBar {
public:
    [[nodiscard]] std::unique_ptr<StatusItemInBar> addItem(std::shared_ptr<StatusItem> item) override;
};
