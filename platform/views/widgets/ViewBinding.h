// SPDX-License-Identifier: MIT
// ViewBinding shows one view on the screen: it owns the view's widget and the bindings of its subviews, and
// keeps the widget at the view's place. The widget's content is left to ViewWidgets.
// Thread: main.  Owner: the binding of the superview, or the window's widget, which destroys it before
// control returns to the event loop after the view was destroyed.
#pragma once

#include "platform/views/View.h"

#include <QPoint>
#include <QPointer>

class QGraphicsOpacityEffect;
class QWidget;
class TextMeasurer;

/// Shared by all bindings of one window.
struct WindowBindings {
    const Window &window;
    std::shared_ptr<const TextMeasurer> measurer;
};

class ViewBinding : public QObject {
public:
    /// bindings: outlives this binding.
    ViewBinding(View &view, QWidget &parent, const WindowBindings &bindings);
    ~ViewBinding() override;

    [[nodiscard]] const View *view() const { return m_view; }

    /// Moves the widget and those of all subviews to their views' places, after a change of the window or of
    /// a superview. parentOrigin: the top left corner of the parent in the window's widget.
    void layOut(const QPoint &parentOrigin);

    /// Gives the window's measurer to all labels and buttons among this view and its subviews.
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
    QWidget *m_widget; // owned by its parent, but deleted with this
    QPoint m_parentOrigin;
    std::vector<std::unique_ptr<ViewBinding>> m_subviews;
};
