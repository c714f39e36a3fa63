// SPDX-License-Identifier: MIT
// WordCounterViewControllerLayoutDelegate hears when a statistics panel has placed its labels; the panel's
// host is one. Thread: main.  Owner: itself; the panel refers to it weakly.
#pragma once

#include "platform/system/WeakDelegate.h"

class WordCounterViewControllerLayoutDelegate : public Delegate {
public:
    /// At the end of every placement.
    virtual void wordCounterViewControllerDidRelayoutLabels() = 0;
    /// After a placement that shows more labels, or fewer, than the one before.
    virtual void wordCounterViewControllerDidChangeVisibleLabelsCount() { }
};
