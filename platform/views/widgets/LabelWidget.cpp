// SPDX-License-Identifier: MIT
#include "platform/views/widgets/LabelWidget.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

/// The font, or as much of its size as has lines of that height.
QFont fittingFont(const QFont &font, double height, const QPaintDevice &device)
{
    const auto lineHeight = [&device](const QFont &used) { return QFontMetricsF(used, &device).height(); };
    QFont fitting = font;
    if (lineHeight(font) > height)
        fitting.setPixelSize(
            std::max(1, static_cast<int>(QFontInfo(font).pixelSize() * height / lineHeight(font))));
    while (fitting.pixelSize() > 1 && lineHeight(fitting) > height) // heights are rounded
        fitting.setPixelSize(fitting.pixelSize() - 1);
    return fitting;
}

} // namespace

LabelWidget::LabelWidget(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setIndent(0);
}

void LabelWidget::paintEvent(QPaintEvent *event)
{
    const QFont fitting = fittingFont(font(), height(), *this);
    const QFontMetricsF metrics(fitting, this);
    if (fitting == font() && metrics.horizontalAdvance(text()) <= width()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setFont(fitting);
    style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(),
        metrics.elidedText(text(), Qt::ElideMiddle, width()), foregroundRole());
}
