// SPDX-License-Identifier: MIT
// WindowWidget shows a window on the screen: a real top-level widget that follows the window and its views,
// and tells them what the user does. Where windows cannot know their place, as on Wayland, the origin of the
// frame is only a wish. Thread: main.  Owner: whoever opens windows; shares the ownership of the window.
//
// - The content of the widget is the frame, without the title bar: see PixelGeometry.h for points and pixels.
// - A window without a title bar is frameless; a floating one is a tool window above all others.
// - What the user, the window manager or another primary screen does to the place and the size becomes the
// frame
//   of the window. Without the style resizable the window keeps its size.
// - Escape and Ctrl+W do what the window manager's close does.
// - The labels of the window get a text measurer, and a new one whenever the user's font or the scale
// changes;
//   Window::textMetricsDidChange() then tells so.
#pragma once

#include "platform/views/Window.h"
#include "platform/views/widgets/ViewBinding.h"

#include <QTimer>
#include <QWidget>

#include <optional>

class LabelTextMeasurer;
class QShortcut;

class WindowWidget : public QWidget {
    Q_OBJECT

public:
    /// window: not null.
    explicit WindowWidget(std::shared_ptr<Window> window);
    ~WindowWidget() override;

    [[nodiscard]] const Window &window() const { return *m_window; }

    /// What Ctrl+C does: puts the window's content to copy on the clipboard, in all its forms. Without a
    /// provider, or where it gives nothing, the clipboard stays as it is.
    void copy();

protected:
    bool event(QEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void followWindow();
    void followScreens();
    void bindContent();
    void applyStyle();
    void applyFrame();
    void applyFrameOnceReleased();
    void applySizeLimits();
    void takeOverGeometry();
    void takeOverScreen();
    void bringToFront();

    std::shared_ptr<Window> m_window;
    WindowBindings m_bindings;
    std::shared_ptr<const LabelTextMeasurer> m_measurer;
    std::unique_ptr<ViewBinding> m_content;
    QShortcut *m_copyShortcut;
    QTimer m_settling;
    QList<QPoint> m_ownPlaces; // in pixels; where the program has had the window since it began to settle
    QTimer m_waitingForRelease; // while the window may be in the user's hand
    bool m_wasReleased = false; // at the last look
    QPointF m_knownOrigin; // of the frame, as the display was told or has told
    bool m_takingOver = false;
    std::optional<QPoint> m_pressedAt;
    QMetaObject::Connection m_primaryScreen;
};
