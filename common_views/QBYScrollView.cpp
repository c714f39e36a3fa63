// SPDX-License-Identifier: MIT
#include "common_views/QBYScrollView.h"

void QBYScrollView::scrollWheel(const ScrollWheelEvent &event)
{
    if (!m_disableScrolling)
        ScrollView::scrollWheel(event);
}
