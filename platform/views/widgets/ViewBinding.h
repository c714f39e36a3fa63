// SPDX-License-Identifier: MIT
// ViewBinding puts one view on the screen: it owns the widget of the view and the bindings of its subviews,
// and keeps the widget where the view is. Thread: main.  Owner: the binding of the superview, or the window's
// widget; it ends before control returns to the event loop after the view has gone.
#pragma once

#include "platform/views/View.h"

#include <QPoint>
#include <QPointer>

class QGraphicsOpacityEffect;
class QWidget;
class TextMeasurer;

/// What all bindings of one window share.
struct WindowBindings {
    const Window &window;
    std::shared_ptr<const TextMeasurer> measurer;
};

class ViewBinding : public QObject {
public:
    /// bindings: lives longer.
    ViewBinding(View &view, QWidget &parent, const WindowBindings &bindings);
    ~ViewBinding() override;

    [[nodiscard]] const View *view() const { return m_view; }

    /// Puts the widget and those of all subviews where the views are, now that the window or a superview has
    /// changed. parentOrigin: the top left corner of the parent in the window's widget.
    void layOut(const QPoint &parentOrigin);

    /// Gives the measurer of the window to the label that this view may be, and to those below it.
    void setTextMeasurer();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followView();
    void bindSubviews();
    void showOrHide();
    void fade(int milliseconds);
    QGraphicsOpacityEffect &opacityEffect();

    QPointer<View> m_view;
    const WindowBindings &m_bindings;
    QWidget *m_widget; // belongs to its parent, but ends with this
    QPoint m_parentOrigin;
    std::vector<std::unique_ptr<ViewBinding>> m_subviews;
};
