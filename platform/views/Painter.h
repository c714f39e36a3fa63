// SPDX-License-Identifier: MIT
// Painter is the surface a view draws on, in the coordinates of the view's bounds.
// Thread: main.  Owner: whoever asks the view to draw; views keep no reference.
#pragma once

#include "platform/views/Color.h"

#include <QRectF>

class Painter {
public:
    virtual ~Painter() = default;

    virtual void fillRect(const QRectF &rect, const Color &color) = 0;

protected:
    Painter() = default;
    Painter(const Painter &) = default;
    Painter &operator=(const Painter &) = default;
};
