// SPDX-License-Identifier: MIT
// TabStops tells where the tabs of a paragraph lead.
// Thread: any; refers to the paragraph style, which must outlive it.
#pragma once

#include "platform/styled_text/TextAttributes.h"

class TabStops {
public:
    /// Where the style gives no usable interval: 28 points.
    explicit TabStops(const ParagraphStyle &style);

    /// The first stop behind a position (points from the leading edge of the column, finite): one that the
    /// style names, behind those the next multiple of its interval.
    [[nodiscard]] TabStop nextBehind(double position) const;

private:
    const std::vector<TabStop> &m_stops;
    double m_interval;
};
