// SPDX-License-Identifier: MIT
// QBYServiceProviderShowStatsWindowControllerDelegate is notified when a statistics window has been closed.
// Thread: main.  Owner: independent of the window controller, which refers to it weakly.
#pragma once

#include "platform/system/WeakDelegate.h"

class QBYServiceProviderShowStatsWindowController;

class QBYServiceProviderShowStatsWindowControllerDelegate : public Delegate {
public:
    /// The window is hidden already. The delegate may drop its reference to the controller here.
    virtual void serviceProviderShowStatsWindowControllerDidClose(
        QBYServiceProviderShowStatsWindowController &controller) = 0;
};
