// SPDX-License-Identifier: MIT
// QBYView is a view with a background colour.
// Thread: main, but for the colour's accessors, which any thread may call while the view lives.
// Owner: its superview or window.
#pragma once

#include "platform/views/Painter.h"
#include "platform/views/View.h"

#include <mutex>
#include <optional>

class QBYView : public View {
public:
    using View::View;

    /// Absent until set: nothing is painted.
    [[nodiscard]] std::optional<Color> backgroundColor() const;
    /// Asks for a redraw unless the view has this very colour already. A view without a colour always asks
    /// for one, even when it is told once more to have none.
    void setBackgroundColor(const std::optional<Color> &color);

    /// Fills the whole bounds, not only what is dirty.
    void drawRect(const QRectF &dirtyRect, Painter &painter) override;

private:
    // Recursive: displayNeeded() is emitted under the lock, and a listener may read the colour.
    mutable std::recursive_mutex m_lock;
    std::optional<Color> m_backgroundColor;
};
