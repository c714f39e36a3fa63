// SPDX-License-Identifier: MIT
// Window is a rectangle of the screen, filled by its content view; a title bar lies above the frame. Showing
// it is left to platform/views/widgets, which follows its signals.
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

/// The same content in several forms: the bytes by MIME type, such as "text/plain". Texts are UTF-8.
using MimeContent = std::map<QString, QByteArray>;

class Window : public QObject {
    Q_OBJECT

public:
    /// Bits of a style mask; other bits are kept and have no effect.
    static constexpr unsigned titled = 1;
    static constexpr unsigned closable = 2;
    static constexpr unsigned miniaturizable = 4;
    static constexpr unsigned resizable = 8;

    explicit Window(const QRectF &frame = {}, unsigned styleMask = 0);
    ~Window() override;

    /// On the screen, points, origin at the bottom left of the primary screen.
    [[nodiscard]] const QRectF &frame() const { return m_frame; }
    /// display: also redraw the content. animate: the frame on the screen may change gradually; the content
    /// view has its new size at once.
    void setFrame(const QRectF &frame, bool display, bool animate);

    [[nodiscard]] const std::shared_ptr<View> &contentView() const { return m_contentView; }
    /// The view is removed from its former superview or window. Null for none.
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

    /// Pixels per point on the window's screen; 1 for a window on no screen.
    [[nodiscard]] double backingScaleFactor() const { return m_backingScaleFactor; }
    /// Finite and above 0; other values are ignored.
    void setBackingScaleFactor(double factor);

    /// Whether the window may take the keyboard focus; by default only with a title bar.
    [[nodiscard]] virtual bool canBecomeKeyWindow() const { return m_styleMask & titled; }
    /// Whether the window may be the one the user works in; by default only with a title bar.
    [[nodiscard]] virtual bool canBecomeMainWindow() const { return m_styleMask & titled; }

    /// Whether the desktop chooses the place of the window when it comes onto the screen; the frame follows.
    /// For owners that do not know a place.
    [[nodiscard]] bool isPlacedByDesktop() const { return m_placedByDesktop; }
    void setPlacedByDesktop(bool placedByDesktop) { m_placedByDesktop = placedByDesktop; }

    /// Whether the window should be on the screen; initially false.
    [[nodiscard]] bool isVisible() const { return m_visible; }
    /// Shows the window above the others of its level, with the keyboard focus if it may take it.
    void orderFront();
    void orderOut();

    /// Acts like the close button: emits closeRequested(), and closes the window unless its owner has turned
    /// that off by setClosesOnRequest(false).
    void performClose();
    /// Hides the window and emits closed(). Does nothing for a window that is not visible.
    void close();
    void setClosesOnRequest(bool closes) { m_closesOnRequest = closes; }

    /// Provides what the user copies from the window. Without a provider the window offers no Copy.
    void setCopyProvider(std::function<MimeContent()> provider);
    [[nodiscard]] bool canCopy() const { return m_copyProvider != nullptr; }
    /// Empty without a provider.
    [[nodiscard]] MimeContent contentToCopy() const { return canCopy() ? m_copyProvider() : MimeContent(); }

    /// Provides what the window shows as a whole, in words, for screen readers.
    void setSummaryProvider(std::function<QString()> provider) { m_summaryProvider = std::move(provider); }
    /// What screen readers read instead of the summary, such as what the user waits for; empty for none.
    void setNotice(const QString &notice) { m_notice = notice; }
    /// The notice, or the summary; empty if there is neither.
    [[nodiscard]] QString accessibleDescription() const;
    /// Screen readers read the description now: for what the user has asked for, as they interrupt the user.
    void announce() { Q_EMIT announced(); }

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
    void announced();
    /// The window's labels need another size: the window came onto a screen, or the user's font or the scale
    /// of the screen changed. The owner of the labels has to fit and place them again.
    void textMetricsDidChange();

private:
    QRectF m_frame;
    std::shared_ptr<View> m_contentView;
    QString m_title;
    unsigned m_styleMask;
    WindowLevel m_level = WindowLevel::Normal;
    double m_backingScaleFactor = 1;
    bool m_movableByBackground = false;
    bool m_placedByDesktop = false;
    bool m_visible = false;
    bool m_closesOnRequest = true;
    std::function<MimeContent()> m_copyProvider;
    std::function<QString()> m_summaryProvider;
    QString m_notice;
};
