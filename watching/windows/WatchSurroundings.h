// SPDX-License-Identifier: MIT
// WatchSurroundings is what a watcher needs of the program that it lives in.
// Thread: main; a value. What it refers to outlives the watchers.
#pragma once

#include "platform/system/Clock.h"
#include "platform/views/ApplicationActivity.h"
#include "platform/views/Desktop.h"
#include "platform/views/StatusItem.h"
#include "speech/ApplicationExtension.h"

struct WatchSurroundings {
    Desktop &desktop;
    ApplicationActivity &applicationActivity;
    StatusBar *statusBar = nullptr; ///< only watchers with an item in it need one
    Clock &clock = systemClock();
    QString speechLaunchPath = QBYExtension::speechLaunchPath();
};
