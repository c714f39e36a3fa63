// SPDX-License-Identifier: MIT
// WatchTextFileViewControllerDelegate presents a watch panel and handles its buttons. It may drop its
// reference to the panel in any of these calls.
// Thread: main.  Owner: independent of the panel, which refers to it weakly.
#pragma once

#include "platform/system/WeakDelegate.h"

class Popover;
class WatchTextFileViewController;

class WatchTextFileViewControllerDelegate : public Delegate {
public:
    virtual void watchTextFileViewControllerRequestedClose(WatchTextFileViewController &panel) = 0;
    /// panel: null if the request does not come from a panel.
    virtual void watchTextFileViewControllerRequestedStop(WatchTextFileViewController *panel) = 0;
    /// The pop-over that shows the panel; null if a window does.
    virtual Popover *popoverFromPresenterForAutoResizeOrNil(WatchTextFileViewController &panel) = 0;
    /// The indicator has started or stopped along with a count. Optional.
    virtual void didChangeActivityIndicatorAnimationState(
        WatchTextFileViewController & /*panel*/, bool /*isAnimating*/)
    {
    }
};
