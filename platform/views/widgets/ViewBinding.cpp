// SPDX-License-Identifier: MIT
#include "platform/views/widgets/ViewBinding.h"

#include "platform/views/Controls.h"
#include "platform/views/ScrollView.h"
#include "platform/views/Window.h"
#include "platform/views/widgets/PixelGeometry.h"
#include "platform/views/widgets/ViewWidgets.h"

#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>
#include <unordered_map>

namespace {

constexpr double wheelStep = 120; // QWheelEvent::angleDelta() for one notch of a mouse wheel

/// In points: the distance that a touchpad reports, or the user's number of lines per notch of a wheel.
ScrollWheelEvent scrollEvent(const QWheelEvent &event, const QWidget &widget)
{
    if (!event.pixelDelta().isNull())
        return {static_cast<double>(event.pixelDelta().x()), static_cast<double>(event.pixelDelta().y())};
    const double notch = QApplication::wheelScrollLines() * widget.fontMetrics().lineSpacing();
    return {event.angleDelta().x() / wheelStep * notch, event.angleDelta().y() / wheelStep * notch};
}

} // namespace

ViewBinding::ViewBinding(View &view, QWidget &parent, const WindowBindings &bindings)
    : m_view(&view)
    , m_bindings(bindings)
    , m_widget(makeViewWidget(view, &parent))
{
    m_widget->installEventFilter(this);
    followView();
    bindSubviews();
    setTextMeasurer();
    fade(0);
    showOrHide();
}

ViewBinding::~ViewBinding()
{
    m_subviews.clear();
    // Deleted later: the widget's own click may have removed the view.
    m_widget->hide();
    m_widget->deleteLater();
}

void ViewBinding::followView()
{
    const auto layOutAgain = [this] { layOut(m_parentOrigin); };
    connect(m_view, &View::frameDidChange, this, layOutAgain);
    connect(m_view, &View::hiddenDidChange, this, &ViewBinding::showOrHide);
    connect(m_view, &View::alphaValueDidChange, this, &ViewBinding::fade);
    connect(m_view, &View::subviewsDidChange, this, [this, layOutAgain] {
        bindSubviews();
        layOutAgain();
    });
    if (auto *const clipView = dynamic_cast<ClipView *>(m_view.get()))
        connect(clipView, &ClipView::boundsDidChange, this, layOutAgain);
}

void ViewBinding::bindSubviews()
{
    const std::vector<std::shared_ptr<View>> &views = m_view->subviews();
    size_t kept = 0; // views whose place in the order is unchanged
    while (kept < std::min(views.size(), m_subviews.size()) && m_subviews[kept]->view() == views[kept].get())
        ++kept;
    std::unordered_map<const View *, std::unique_ptr<ViewBinding>> former;
    for (size_t i = kept; i < m_subviews.size(); ++i)
        former.emplace(m_subviews[i]->view(), std::move(m_subviews[i]));
    m_subviews.resize(kept);
    for (size_t i = kept; i < views.size(); ++i) {
        std::unique_ptr<ViewBinding> &known = former[views[i].get()];
        m_subviews.push_back(
            known ? std::move(known) : std::make_unique<ViewBinding>(*views[i], *m_widget, m_bindings));
        // Widgets have the order of the views, which is that of stacking and of screen readers.
        m_subviews.back()->m_widget->raise();
    }
}

void ViewBinding::layOut(const QPoint &parentOrigin)
{
    m_parentOrigin = parentOrigin;
    const QRect inWindow = pixelRectInWindow(
        m_view->convertToWindow(m_view->bounds()), roundToPixel(m_bindings.window.frame().height()));
    m_widget->setGeometry(inWindow.translated(-parentOrigin));
    for (const std::unique_ptr<ViewBinding> &subview : m_subviews)
        subview->layOut(inWindow.topLeft());
}

void ViewBinding::setTextMeasurer()
{
    if (auto *const label = dynamic_cast<Label *>(m_view.get()))
        label->setTextMeasurer(m_bindings.measurer);
    else if (auto *const button = dynamic_cast<Button *>(m_view.get()))
        button->setTextMeasurer(m_bindings.measurer);
    for (const std::unique_ptr<ViewBinding> &subview : m_subviews)
        subview->setTextMeasurer();
}

void ViewBinding::showOrHide()
{
    m_widget->setVisible(!m_view->isHidden());
}

QGraphicsOpacityEffect &ViewBinding::opacityEffect()
{
    if (!m_widget->graphicsEffect()) {
        auto *const effect = new QGraphicsOpacityEffect(m_widget);
        effect->setOpacity(1);
        m_widget->setGraphicsEffect(effect);
    }
    return *static_cast<QGraphicsOpacityEffect *>(m_widget->graphicsEffect());
}

void ViewBinding::fade(int milliseconds)
{
    const double alpha = m_view->alphaValue();
    if (alpha == 1 && !m_widget->graphicsEffect())
        return;
    QGraphicsOpacityEffect &effect = opacityEffect();
    qDeleteAll(effect.findChildren<QPropertyAnimation *>());
    if (milliseconds <= 0) {
        // Without the effect an opaque widget is drawn directly, not through a pixmap.
        if (alpha == 1)
            m_widget->setGraphicsEffect(nullptr);
        else
            effect.setOpacity(alpha);
        return;
    }
    auto *const animation = new QPropertyAnimation(&effect, "opacity", &effect);
    animation->setDuration(milliseconds);
    animation->setEndValue(alpha);
    // At the end, a call without a duration removes the effect and the animation.
    connect(
        animation, &QPropertyAnimation::finished, this, [this] { fade(0); }, Qt::QueuedConnection);
    animation->start();
}

bool ViewBinding::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return QObject::eventFilter(watched, event);
    m_view->scrollWheel(scrollEvent(*static_cast<QWheelEvent *>(event), *m_widget));
    return true;
}
