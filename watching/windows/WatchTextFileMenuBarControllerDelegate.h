// SPDX-License-Identifier: MIT
// WatchTextFileMenuBarControllerDelegate keeps a watcher, and hears when it has finished.
// Thread: main.  Owner: itself; the watcher refers to it weakly.
#pragma once

#include "platform/system/WeakDelegate.h"

class WatchTextFileMenuBarController;

class WatchTextFileMenuBarControllerDelegate : public Delegate {
public:
    /// It watches no more and shows nothing. Letting it go here ends its life.
    virtual void watchTextFileMenuBarControllerDidFinish(WatchTextFileMenuBarController &controller) = 0;
};
