// SPDX-License-Identifier: MIT
// WatchTextFileMenuBarControllerDelegate owns a watcher and is notified when it has finished.
// Thread: main.  Owner: independent of the watcher, which refers to it weakly.
#pragma once

#include "platform/system/WeakDelegate.h"

class WatchTextFileMenuBarController;

class WatchTextFileMenuBarControllerDelegate : public Delegate {
public:
    /// The watcher has stopped and hidden its views. The delegate may drop its reference here.
    virtual void watchTextFileMenuBarControllerDidFinish(WatchTextFileMenuBarController &controller) = 0;
};
