// SPDX-License-Identifier: MIT
#include "platform/views/widgets/SymbolIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPen>

namespace {

/// In the middle half of the square.
void drawCross(QPainter &painter, const QRectF &square, const QColor &color)
{
    QRectF cross(0, 0, square.width() * 0.5, square.width() * 0.5);
    cross.moveCenter(square.center());
    painter.setPen(QPen(color, square.width() * 0.11, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
}

/// A quill over a line, on a grid of 16 by 16.
void drawQuill(QPainter &painter, const QRectF &square, const QColor &color)
{
    QPainterPath quill({15, 1});
    quill.cubicTo(10.5, 1, 6.2, 3.5, 5.3, 7.6);
    quill.lineTo(10.6, 4.3);
    quill.lineTo(5.4, 9.3);
    quill.lineTo(3.6, 12);
    quill.lineTo(5.2, 12);
    quill.lineTo(6.6, 10);
    quill.cubicTo(11, 10, 14.6, 6, 15, 1);
    quill.addRect(1, 13.4, 14, 1.6);
    painter.translate(square.topLeft());
    painter.scale(square.width() / 16, square.height() / 16);
    painter.fillPath(quill, color);
}

using Drawing = void (*)(QPainter &painter, const QRectF &square, const QColor &color);

class SymbolEngine final : public QIconEngine {
public:
    explicit SymbolEngine(Drawing draw)
        : m_draw(draw)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const bool isDisabled = mode == QIcon::Disabled;
        const QColor color = QGuiApplication::palette().color(
            isDisabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
        const double side = qMin(rect.width(), rect.height());
        QRectF square(0, 0, side, side);
        square.moveCenter(QRectF(rect).center());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        m_draw(*painter, square, color);
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

private:
    Drawing m_draw;
};

} // namespace

QIcon SymbolIcon::load(const QString &name)
{
    if (name == QStringLiteral("quillbay-close"))
        return QIcon(new SymbolEngine(drawCross));
    if (name == QStringLiteral("MenubarIcon"))
        return QIcon(new SymbolEngine(drawQuill));
    return {};
}
