// SPDX-License-Identifier: MIT
// QBYView is a view with a background colour.
// Thread: main; the colour's accessors any, while the view lives.  Owner: its superview or window.
#pragma once

#include "platform/views/Painter.h"
#include "platform/views/View.h"

#include <mutex>
#include <optional>

class QBYView : public View {
public:
    using View::View;

    /// Initially absent: nothing is painted.
    [[nodiscard]] std::optional<Color> backgroundColor() const;
    /// Requests a redraw unless the view has this colour already. A view without a colour always requests
    /// one, even if it stays without.
    void setBackgroundColor(const std::optional<Color> &color);

    /// Fills the whole bounds, not only the dirty part.
    void drawRect(const QRectF &dirtyRect, Painter &painter) override;

private:
    // Recursive: displayNeeded() is emitted under the lock, and a listener may read the colour.
    mutable std::recursive_mutex m_lock;
    std::optional<Color> m_backgroundColor;
};
