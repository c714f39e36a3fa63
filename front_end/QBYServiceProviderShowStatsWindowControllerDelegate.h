// SPDX-License-Identifier: MIT
// QBYServiceProviderShowStatsWindowControllerDelegate hears that a window of statistics has been closed.
// Thread: main.  Owner: itself; the window controller refers to it weakly.
#pragma once

#include "platform/system/WeakDelegate.h"

class QBYServiceProviderShowStatsWindowController;

class QBYServiceProviderShowStatsWindowControllerDelegate : public Delegate {
public:
    /// The window is off the screen already. Letting the controller go here ends its life.
    virtual void serviceProviderShowStatsWindowControllerDidClose(
        QBYServiceProviderShowStatsWindowController &controller) = 0;
};
