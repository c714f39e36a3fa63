// SPDX-License-Identifier: MIT
#include "platform/views/widgets/SymbolIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPen>

namespace {

void drawCross(QPainter &painter, const QRectF &square)
{
    painter.drawLine(square.topLeft(), square.bottomRight());
    painter.drawLine(square.topRight(), square.bottomLeft());
}

class SymbolEngine final : public QIconEngine {
public:
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const bool isDisabled = mode == QIcon::Disabled;
        const QColor color = QGuiApplication::palette().color(
            isDisabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
        const double side = qMin(rect.width(), rect.height());
        QRectF square(0, 0, side * 0.5, side * 0.5);
        square.moveCenter(QRectF(rect).center());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(color, side * 0.11, Qt::SolidLine, Qt::RoundCap));
        drawCross(*painter, square);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    [[nodiscard]] QIconEngine *clone() const override { return new SymbolEngine(*this); }
};

} // namespace

QIcon SymbolIcon::named(const QString &name)
{
    return name == QStringLiteral("quillbay-close") ? QIcon(new SymbolEngine) : QIcon();
}
