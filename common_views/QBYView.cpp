// SPDX-License-Identifier: MIT
#include "common_views/QBYView.h"

#include "platform/views/Painter.h"

std::optional<Color> QBYView::backgroundColor() const
{
    const std::lock_guard lock(m_lock);
    return m_backgroundColor;
}

void QBYView::setBackgroundColor(const std::optional<Color> &color)
{
    const std::lock_guard lock(m_lock);
    if (m_backgroundColor && m_backgroundColor == color)
        return;
    m_backgroundColor = color;
    setNeedsDisplay();
}

void QBYView::drawRect(const QRectF &dirtyRect, Painter &painter)
{
    View::drawRect(dirtyRect, painter);
    if (const std::optional<Color> color = backgroundColor())
        painter.fillRect(bounds(), *color);
}
