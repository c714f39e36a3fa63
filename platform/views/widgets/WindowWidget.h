// SPDX-License-Identifier: MIT
// WindowWidget shows a window on the screen: a top-level widget that follows the window and its views, and
// reports what the user does. Where windows cannot choose their place, as on Wayland, the frame's origin has
// no effect.
// Thread: main.  Owner: WidgetDesktop's WindowOnScreen; shares the ownership of the window.
//
// - The widget covers the frame, without the title bar; PixelGeometry.h relates points and pixels.
// - A window without a title bar is frameless; a floating one is above all others. Taskbar and Alt+Tab have
//   both.
// - A window that the desktop places adopts its place once the desktop has chosen it.
// - A window that comes to the front where it would hide another one of the program is moved to the next free
//   place of a cascade; one that grows over an edge of the work area is moved back into it.
// - The frame of the window follows when the user, the window manager, a change of the primary screen or one
//   of these moves changes the widget. Without the style resizable the window keeps its size.
// - No control has the focus when the window opens.
// - Escape and Ctrl+W act like the window manager's close.
// - The labels of the window get a text measurer, and a new one whenever the user's font or the scale
//   changes; then the window emits textMetricsDidChange().
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

    [[nodiscard]] const Window &representedWindow() const { return *m_window; }

    /// Acts like Ctrl+C: puts the window's content to copy on the clipboard, in all its forms. Without such
    /// content the clipboard stays unchanged.
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
    void applyFrameAfterDrag();
    void applySizeLimits();
    void adoptGeometry();
    void adoptScreen();
    void moveTo(const QPoint &corner);
    void awaitPlace();
    void bringToFront();

    std::shared_ptr<Window> m_window;
    WindowBindings m_bindings;
    std::shared_ptr<const LabelTextMeasurer> m_measurer;
    std::unique_ptr<ViewBinding> m_content;
    QShortcut *m_copyShortcut;
    QTimer m_settling; // runs while the display may report former places
    QList<QPoint> m_ownPlaces; // in pixels; places that the program gave the window while it settles
    QTimer m_dragPoll; // runs while the user may be dragging the window
    bool m_wasReleased = false; // at the last poll
    QPointF m_knownOrigin; // of the frame, as last sent to or received from the display
    bool m_isAdopting = false;
    bool m_awaitsPlace = false; // from the desktop; until then only the size is changed
    std::optional<QPoint> m_pressedAt;
    QMetaObject::Connection m_primaryScreen;
};
