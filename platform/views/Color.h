// SPDX-License-Identifier: MIT
// Color is a colour in sRGB.
// Thread: any; a value.
#pragma once

/// Components run from 0 to 1.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    static constexpr Color white() { return {1, 1, 1, 1}; }

    bool operator==(const Color &) const = default;
};
