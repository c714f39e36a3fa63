// SPDX-License-Identifier: MIT
// WordCounterViewControllerLayoutDelegate is notified when a statistics panel has placed its labels; the
// panel's host implements it.
// Thread: main.  Owner: the host; the panel refers to it weakly.
#pragma once

#include "platform/system/WeakDelegate.h"

class WordCounterViewControllerLayoutDelegate : public Delegate {
public:
    /// At the end of every placement.
    virtual void wordCounterViewControllerDidRelayoutLabels() = 0;
    /// After a placement that changed the number of visible labels.
    virtual void wordCounterViewControllerDidChangeVisibleLabelsCount() { }
};
