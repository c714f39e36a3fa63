// SPDX-License-Identifier: MIT
// FlippedView is a QBYView whose origin is its top left corner, with y growing downward.
// Thread: main.  Owner: its superview or window.
#pragma once

#include "common_views/QBYView.h"

class FlippedView : public QBYView {
public:
    using QBYView::QBYView;

    [[nodiscard]] bool isFlipped() const override { return true; }
};
