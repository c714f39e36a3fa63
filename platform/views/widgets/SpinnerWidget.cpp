// SPDX-License-Identifier: MIT
#include "platform/views/widgets/SpinnerWidget.h"

#include <QPainter>
#include <QTimerEvent>

#include <algorithm>

namespace {

constexpr int spokes = 12;
constexpr int turnTime = 1000; // milliseconds
// In fractions of the wheel's radius.
constexpr double innerEnd = 0.5;
constexpr double outerEnd = 0.9;
constexpr double thickness = 0.16;

} // namespace

SpinnerWidget::SpinnerWidget(QWidget *parent)
    : QProgressBar(parent)
{
    setRange(0, 0);
    setTextVisible(false);
}

void SpinnerWidget::setTurning(bool turning)
{
    m_turning = turning;
    updateTimer();
    update();
}

void SpinnerWidget::updateTimer()
{
    if (m_turning && isVisible())
        m_timer.start(turnTime / spokes, this);
    else
        m_timer.stop();
}

void SpinnerWidget::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        QProgressBar::timerEvent(event);
        return;
    }
    m_step = (m_step + 1) % spokes;
    update();
}

void SpinnerWidget::showEvent(QShowEvent *event)
{
    QProgressBar::showEvent(event);
    updateTimer();
}

void SpinnerWidget::hideEvent(QHideEvent *event)
{
    QProgressBar::hideEvent(event);
    updateTimer();
}

void SpinnerWidget::paintEvent(QPaintEvent * /*event*/)
{
    if (!m_turning)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    const double radius = std::min(width(), height()) / 2.0;
    QColor color = palette().color(QPalette::WindowText);
    for (int spoke = 0; spoke < spokes; ++spoke) {
        const int age = (m_step - spoke + spokes) % spokes;
        color.setAlphaF(1 - 0.8F * static_cast<float>(age) / (spokes - 1));
        painter.setPen(QPen(color, radius * thickness, Qt::SolidLine, Qt::RoundCap));
        painter.save();
        painter.rotate(360.0 * spoke / spokes);
        painter.drawLine(QPointF(0, -radius * innerEnd), QPointF(0, -radius * outerEnd));
        painter.restore();
    }
}
