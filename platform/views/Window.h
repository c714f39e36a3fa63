// SPDX-License-Identifier: MIT
// Window is a rectangle of the screen that a tree of views fills. It draws no title bar: its content view is
// as large as its frame. Thread: main.  Owner: its controller; shares the ownership of its content view.
#pragma once

#include "platform/views/Geometry.h"

#include <QObject>

#include <memory>

class View;

class Window : public QObject {
    Q_OBJECT

public:
    /// Bits of a style mask; masks may hold others, which mean nothing here.
    static constexpr unsigned titled = 1;
    static constexpr unsigned closable = 2;
    static constexpr unsigned miniaturizable = 4;

    explicit Window(const QRectF &frame = {}, unsigned styleMask = 0);
    ~Window() override;

    /// On the screen, points, origin at the bottom left.
    [[nodiscard]] const QRectF &frame() const { return m_frame; }
    /// display: also draw the content anew. animate: what shows the window may go to the new frame step by
    /// step; the content view has its new size at once.
    void setFrame(const QRectF &frame, bool display, bool animate);

    [[nodiscard]] const std::shared_ptr<View> &contentView() const { return m_contentView; }
    /// The view leaves the superview or window it had. Null for none.
    void setContentView(std::shared_ptr<View> view);

    [[nodiscard]] unsigned styleMask() const { return m_styleMask; }
    virtual void setStyleMask(unsigned styleMask);

    /// Pixels per point of the screen that shows the window, 1 for a window on no screen.
    [[nodiscard]] double backingScaleFactor() const { return m_backingScaleFactor; }
    /// Finite and above 0; anything else is ignored.
    void setBackingScaleFactor(double factor);

    /// Whether the window may take the keyboard; an ordinary one only with a title bar.
    [[nodiscard]] virtual bool canBecomeKeyWindow() const { return m_styleMask & titled; }
    /// Whether the window may be the one the user works in; an ordinary one only with a title bar.
    [[nodiscard]] virtual bool canBecomeMainWindow() const { return m_styleMask & titled; }

Q_SIGNALS:
    void frameDidChange(bool display, bool animate);
    void contentViewDidChange();
    void styleMaskDidChange();
    void backingScaleFactorDidChange();

private:
    QRectF m_frame;
    std::shared_ptr<View> m_contentView;
    unsigned m_styleMask;
    double m_backingScaleFactor = 1;
};
