// SPDX-License-Identifier: MIT
// WatchTextFileViewControllerDelegate presents a watch panel, and is told what the user presses in it.
// Thread: main.  Owner: itself; the panel refers to it weakly. It may let the panel go in any of these.
#pragma once

#include "platform/system/WeakDelegate.h"

class Popover;
class WatchTextFileViewController;

class WatchTextFileViewControllerDelegate : public Delegate {
public:
    virtual void watchTextFileViewControllerRequestedClose(WatchTextFileViewController &panel) = 0;
    /// panel: null where it is not a panel that asks.
    virtual void watchTextFileViewControllerRequestedStop(WatchTextFileViewController *panel) = 0;
    /// The pop-over that shows the panel; null where a window does.
    virtual Popover *popoverFromPresenterForAutoResizeOrNil(WatchTextFileViewController &panel) = 0;
    /// The indicator that follows the counting by itself has started or stopped. Optional.
    virtual void didChangeActivityIndicatorAnimationState(
        WatchTextFileViewController & /*panel*/, bool /*isAnimating*/)
    {
    }
};
