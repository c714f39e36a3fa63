// SPDX-License-Identifier: MIT
#include "platform/views/Box.h"

#include "platform/views/Painter.h"

void Box::setKind(Kind kind)
{
    if (m_kind == kind)
        return;
    m_kind = kind;
    setNeedsDisplay();
}

void Box::setBackgroundColor(const std::optional<Color> &color)
{
    if (m_backgroundColor == color)
        return;
    m_backgroundColor = color;
    setNeedsDisplay();
}

void Box::drawRect(const QRectF &dirtyRect, Painter &painter)
{
    View::drawRect(dirtyRect, painter);
    if (m_kind == Kind::Plain && m_backgroundColor)
        painter.fillRect(bounds(), *m_backgroundColor);
}
