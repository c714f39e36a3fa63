// SPDX-License-Identifier: MIT
// Window is a rectangle of the screen that a tree of views fills. It draws no title bar: its content view is
// as large as its frame, and a title bar lies above it. What shows it on a screen follows its signals.
// Thread: main.  Owner: its controller; shares the ownership of its content view.
#pragma once

#include "platform/views/Geometry.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>
#include <map>
#include <memory>

class View;

enum class WindowLevel {
    Normal,
    Floating, ///< above the normal windows of all programs
};

/// One content in several forms: MIME type, such as "text/plain" or "text/html", and the bytes of that form.
/// Texts are UTF-8.
using MimeContent = std::map<QString, QByteArray>;

class Window : public QObject {
    Q_OBJECT

public:
    /// Bits of a style mask; masks may hold others, which mean nothing here.
    static constexpr unsigned titled = 1;
    static constexpr unsigned closable = 2;
    static constexpr unsigned miniaturizable = 4;
    static constexpr unsigned resizable = 8;

    explicit Window(const QRectF &frame = {}, unsigned styleMask = 0);
    ~Window() override;

    /// On the screen, points, origin at the bottom left of the primary screen.
    [[nodiscard]] const QRectF &frame() const { return m_frame; }
    /// display: also draw the content anew. animate: what shows the window may go to the new frame step by
    /// step; the content view has its new size at once.
    void setFrame(const QRectF &frame, bool display, bool animate);

    [[nodiscard]] const std::shared_ptr<View> &contentView() const { return m_contentView; }
    /// The view leaves the superview or window it had. Null for none.
    void setContentView(std::shared_ptr<View> view);

    [[nodiscard]] const QString &title() const { return m_title; }
    void setTitle(const QString &title);

    [[nodiscard]] unsigned styleMask() const { return m_styleMask; }
    virtual void setStyleMask(unsigned styleMask);

    [[nodiscard]] WindowLevel level() const { return m_level; }
    void setLevel(WindowLevel level);

    /// Whether the user moves the window by dragging its background or a label.
    [[nodiscard]] bool isMovableByBackground() const { return m_movableByBackground; }
    void setMovableByBackground(bool movable) { m_movableByBackground = movable; }

    /// Pixels per point of the screen that shows the window, 1 for a window on no screen.
    [[nodiscard]] double backingScaleFactor() const { return m_backingScaleFactor; }
    /// Finite and above 0; anything else is ignored.
    void setBackingScaleFactor(double factor);

    /// Whether the window may take the keyboard; an ordinary one only with a title bar.
    [[nodiscard]] virtual bool canBecomeKeyWindow() const { return m_styleMask & titled; }
    /// Whether the window may be the one the user works in; an ordinary one only with a title bar.
    [[nodiscard]] virtual bool canBecomeMainWindow() const { return m_styleMask & titled; }

    /// Whether the window is to be on the screen; a new one is not.
    [[nodiscard]] bool isVisible() const { return m_visible; }
    /// Shows the window above the others of its level; one that may take the keyboard asks for it.
    void orderFront();
    void orderOut();

    /// What a press on the close button does: asks by closeRequested(), and closes the window unless its
    /// owner has said to do that itself.
    void performClose();
    /// Takes the window off the screen and says so. Nothing happens to a window that is not visible.
    void close();
    [[nodiscard]] bool closesOnRequest() const { return m_closesOnRequest; }
    void setClosesOnRequest(bool closes) { m_closesOnRequest = closes; }

    /// What the user copies from the window; without a provider there is nothing to copy, and nothing says
    /// that there were.
    void setCopyProvider(std::function<MimeContent()> provider);
    [[nodiscard]] bool canCopy() const { return m_copyProvider != nullptr; }
    /// Empty without a provider.
    [[nodiscard]] MimeContent contentToCopy() const { return canCopy() ? m_copyProvider() : MimeContent(); }

Q_SIGNALS:
    void frameDidChange(bool display, bool animate);
    void contentViewDidChange();
    void titleDidChange();
    void styleMaskDidChange();
    void levelDidChange();
    void backingScaleFactorDidChange();
    void orderedFront();
    void orderedOut();
    void closeRequested();
    void closed();
    void copyProviderDidChange();
    /// The labels of the window take another size than before: they came onto a screen, or the user's font or
    /// the scale of the screen changed. Whoever placed them fits and places them anew.
    void textMetricsDidChange();

private:
    QRectF m_frame;
    std::shared_ptr<View> m_contentView;
    QString m_title;
    unsigned m_styleMask;
    WindowLevel m_level = WindowLevel::Normal;
    double m_backingScaleFactor = 1;
    bool m_movableByBackground = false;
    bool m_visible = false;
    bool m_closesOnRequest = true;
    std::function<MimeContent()> m_copyProvider;
};
