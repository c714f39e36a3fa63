// SPDX-License-Identifier: MIT
// ProgressIndicator is a view that turns while something of unknown length goes on, and shows nothing
// otherwise. Thread: main.  Owner: its superview or window.
#pragma once

#include "platform/views/View.h"

class ProgressIndicator : public View {
    Q_OBJECT

public:
    using View::View;

    [[nodiscard]] bool isAnimating() const { return m_animating; }
    void startAnimation() { setAnimating(true); }
    void stopAnimation() { setAnimating(false); }

Q_SIGNALS:
    void animatingDidChange();

private:
    void setAnimating(bool animating)
    {
        if (m_animating == animating)
            return;
        m_animating = animating;
        Q_EMIT animatingDidChange();
    }

    bool m_animating = false;
};
