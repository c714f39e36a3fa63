// SPDX-License-Identifier: MIT
// Painter is the surface that a view draws on, in the coordinates of the view's bounds; Color is what it
// draws with.
// Thread: main.  Owner: the code that asks the view to draw; views keep no reference.
#pragma once

#include <QRectF>

/// A colour in sRGB. Components range from 0 to 1.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    static constexpr Color white() { return {1, 1, 1, 1}; }

    bool operator==(const Color &) const = default;
};

class Painter {
public:
    virtual ~Painter() = default;

    virtual void fillRect(const QRectF &rect, const Color &color) = 0;

protected:
    Painter() = default;
    Painter(const Painter &) = default;
    Painter &operator=(const Painter &) = default;
};
