// SPDX-License-Identifier: MIT
#include "platform/views/widgets/ViewWidgets.h"

#include "platform/views/Controls.h"
#include "platform/views/widgets/LabelText.h"
#include "platform/views/widgets/LabelWidget.h"
#include "platform/views/widgets/SpinnerWidget.h"
#include "platform/views/widgets/SymbolIcon.h"

#include <QIcon>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTransform>

#include <algorithm>

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
            QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                static_cast<float>(color.blue), static_cast<float>(color.alpha)));
    }

private:
    QPainter &m_painter;
};

/// From the coordinates of the view to those of its widget. The bounds fill the widget exactly, even if the
/// widget's edges were rounded.
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

/// Shows what a view draws. The view may be destroyed first.
class PaintedWidget : public QWidget {
public:
    PaintedWidget(View &view, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<View> m_view;
};

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

class BoxWidget : public PaintedWidget {
public:
    BoxWidget(Box &box, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<Box> m_box;
};

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

/// Calls update now and after each of the signals, as long as the widget lives.
template <typename ViewClass, typename Update, typename... Signals>
void follow(ViewClass &view, QWidget *widget, const Update &update, Signals... signalsOfView)
{
    (QObject::connect(&view, signalsOfView, widget, update), ...);
    update();
}

Qt::Alignment qtAlignment(LabelAlignment alignment)
{
    switch (alignment) {
    case LabelAlignment::Left:
        break;
    case LabelAlignment::Center:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    case LabelAlignment::Right:
        return Qt::AlignRight | Qt::AlignVCenter;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

QWidget *makeLabel(Label &view, QWidget *parent)
{
    auto *const label = new LabelWidget(parent);
    const auto update = [label, &view] {
        label->setText(QString(view.stringValue()).replace(u'\n', u' ')); // labels have one line
        label->setAlignment(qtAlignment(view.alignment()) | Qt::AlignAbsolute);
    };
    follow(view, label, update, &Label::stringValueDidChange, &Label::alignmentDidChange);
    return label;
}

QIcon loadIcon(const QString &name)
{
    if (name.isEmpty())
        return {};
    const QIcon symbol = SymbolIcon::load(name);
    return symbol.isNull() ? QIcon::fromTheme(name) : symbol;
}

void showFace(QPushButton &button, const Button &view)
{
    const QIcon icon = loadIcon(view.iconName());
    // Falls back to the name where the theme has no such icon.
    QString text = view.title();
    if (text.isEmpty() && icon.isNull())
        text = view.accessibleName();
    button.setIcon(icon);
    button.setText(text.replace(u'&', QStringLiteral("&&")));
    button.setFlat(view.title().isEmpty());
}

QWidget *makeButton(Button &view, QWidget *parent)
{
    auto *const button = new QPushButton(parent);
    const auto update = [button, &view] {
        showFace(*button, view);
        button->setEnabled(view.isEnabled());
    };
    follow(
        view, button, update, &Button::faceDidChange, &View::descriptionDidChange, &Button::enabledDidChange);
    QObject::connect(button, &QPushButton::clicked, &view, &Button::performClick);
    return button;
}

QWidget *makeSpinner(ProgressIndicator &view, QWidget *parent)
{
    auto *const spinner = new SpinnerWidget(parent);
    const auto update = [spinner, &view] { spinner->setTurning(view.isAnimating()); };
    follow(view, spinner, update, &ProgressIndicator::animatingDidChange);
    return spinner;
}

QWidget *makeWidgetOfClass(View &view, QWidget *parent)
{
    if (auto *const label = dynamic_cast<Label *>(&view))
        return makeLabel(*label, parent);
    if (auto *const button = dynamic_cast<Button *>(&view))
        return makeButton(*button, parent);
    if (auto *const indicator = dynamic_cast<ProgressIndicator *>(&view))
        return makeSpinner(*indicator, parent);
    if (auto *const box = dynamic_cast<Box *>(&view))
        return new BoxWidget(*box, parent);
    return new PaintedWidget(view, parent);
}

} // namespace

QWidget *makeViewWidget(View &view, QWidget *parent)
{
    QWidget *const widget = makeWidgetOfClass(view, parent);
    widget->hide();
    widget->setObjectName(view.identifier());
    const auto update = [widget, &view] {
        widget->setAccessibleName(view.accessibleName());
        widget->setToolTip(plainToolTip(view.toolTip()));
        widget->setAccessibleDescription(view.toolTip());
    };
    follow(view, widget, update, &View::descriptionDidChange);
    QObject::connect(&view, &View::displayNeeded, widget, qOverload<>(&QWidget::update));
    return widget;
}
