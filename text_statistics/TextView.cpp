// SPDX-License-Identifier: MIT
#include "text_statistics/TextView.h"

TextView::TextView(const QRectF &frame, std::shared_ptr<LayoutEngine> engine)
    : View(frame)
    , m_engine(std::move(engine))
    , m_layoutManager(*m_engine, m_textStorage, m_textContainer)
{
    m_textContainer.setWidth(frame.width());
}

void TextView::layoutForNewFrame()
{
    m_textContainer.setWidth(frame().width());
}
