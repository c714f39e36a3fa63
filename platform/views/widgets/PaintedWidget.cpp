// SPDX-License-Identifier: MIT
#include "platform/views/widgets/PaintedWidget.h"

#include "platform/views/Controls.h"
#include "platform/views/Painter.h"

#include <QPaintEvent>
#include <QPainter>
#include <QTransform>

namespace {

class WidgetPainter : public Painter {
public:
    explicit WidgetPainter(QPainter &painter)
        : m_painter(painter)
    {
    }

    void fillRect(const QRectF &rect, const Color &color) override
    {
        m_painter.fillRect(rect,
            QColor::fromRgbF(float(color.red), float(color.green), float(color.blue), float(color.alpha)));
    }

private:
    QPainter &m_painter;
};

/// From the coordinates of the view to those of its widget. The bounds fill the widget exactly, also where
/// its edges were rounded.
QTransform transformToWidget(const View &view, const QSize &size)
{
    const QRectF bounds = view.bounds();
    if (bounds.width() <= 0 || bounds.height() <= 0)
        return {};
    QTransform transform;
    if (!view.isFlipped()) {
        transform.translate(0, size.height());
        transform.scale(1, -1);
    }
    transform.scale(size.width() / bounds.width(), size.height() / bounds.height());
    transform.translate(-bounds.x(), -bounds.y());
    return transform;
}

} // namespace

PaintedWidget::PaintedWidget(View &view, QWidget *parent)
    : QWidget(parent)
    , m_view(&view)
{
}

void PaintedWidget::paintEvent(QPaintEvent *event)
{
    if (!m_view)
        return;
    QPainter painter(this);
    const QTransform transform = transformToWidget(*m_view, size());
    painter.setTransform(transform, true);
    WidgetPainter viewPainter(painter);
    m_view->drawRect(transform.inverted().mapRect(QRectF(event->rect())), viewPainter);
}

BoxWidget::BoxWidget(Box &box, QWidget *parent)
    : PaintedWidget(box, parent)
    , m_box(&box)
{
}

void BoxWidget::paintEvent(QPaintEvent *event)
{
    PaintedWidget::paintEvent(event);
    if (!m_box || m_box->kind() != Box::Kind::Separator)
        return;
    QRect line = rect();
    if (line.width() >= line.height())
        line = QRect(0, height() / 2, width(), 1);
    else
        line = QRect(width() / 2, 0, 1, height());
    QPainter(this).fillRect(line, palette().color(QPalette::Mid));
}
