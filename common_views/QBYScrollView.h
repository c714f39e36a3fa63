// SPDX-License-Identifier: MIT
// QBYScrollView is a scroll view whose scrolling by the wheel can be switched off.
// Thread: main.  Owner: its superview or window.
#pragma once

#include "platform/views/ScrollView.h"

class QBYScrollView : public ScrollView {
public:
    using ScrollView::ScrollView;

    [[nodiscard]] bool disableScrolling() const { return m_disableScrolling; }
    void setDisableScrolling(bool disable) { m_disableScrolling = disable; }

    /// With scrolling switched off the event is dropped: enclosing views do not scroll either.
    void scrollWheel(const ScrollWheelEvent &event) override
    {
        if (!m_disableScrolling)
            ScrollView::scrollWheel(event);
    }

private:
    bool m_disableScrolling = false;
};
