// SPDX-License-Identifier: MIT
// Desktop is what window controllers ask of the user's desktop beyond their own window: to put it on the
// screen, to ask and to tell the user something, to have files chosen. Thread: main.  Owner: main() of a
// program with windows; outlives all who use it.
#pragma once

#include "platform/views/Geometry.h"
#include "platform/views/OpenPanel.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <memory>

class Window;

/// A question with buttons. It holds up every other window of the program until the user has answered.
struct Alert {
    QString messageText;
    QString informativeText;
    /// At least one; the first is the default answer. Escape is the last one.
    QStringList buttons;
    /// Of the window; empty: the name of the program.
    QString windowTitle = {};
};

/// Keeps a window on the screen as long as it lives: shown whenever the window is visible.
class WindowOnScreen {
public:
    WindowOnScreen() = default;
    WindowOnScreen(const WindowOnScreen &) = delete;
    WindowOnScreen &operator=(const WindowOnScreen &) = delete;
    virtual ~WindowOnScreen() = default;
};

class Desktop {
public:
    /// button: the index of the button that the user pressed.
    using AlertCompletion = std::function<void(int button)>;

    Desktop() = default;
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;
    virtual ~Desktop() = default;

    /// window: not null, shared with what is returned. What is returned may be let go at any time, also while
    /// the window tells of a click.
    [[nodiscard]] virtual std::unique_ptr<WindowOnScreen> putOnScreen(std::shared_ptr<Window> window) = 0;

    /// The token of the user's request that is being answered (XDG activation, or a startup notification of
    /// X11); the next window that comes to the front takes the focus by it. Empty for none.
    virtual void setActivationToken(const QByteArray &token) = 0;

    // Points, with the origin at the bottom left of the primary screen, as the frames of windows.
    [[nodiscard]] virtual QPointF pointerLocation() const = 0;
    /// What panels and docks leave free of the screen at that point, or of the nearest one.
    [[nodiscard]] virtual QRectF visibleFrameAt(const QPointF &point) const = 0;

    /// The system's alert sound, where it has one.
    virtual void beep() = 0;

    /// Returns at once. The completion is called once, later, unless the program ends before.
    virtual void runAlert(const Alert &alert, AlertCompletion completion) = 0;
    /// Reports to the user that something went wrong; there is nothing to answer. Returns at once. Each text
    /// is reported once in the life of the program.
    virtual void presentError(const QString &text) = 0;
    /// Shows the desktop's own file chooser beside the other windows; returns at once. The completion is
    /// called once, later, unless the program ends before.
    virtual void beginOpenPanel(const OpenPanel &panel, OpenPanel::Completion completion) = 0;

    /// Whether an alert, an error or a file chooser waits for the user.
    [[nodiscard]] virtual bool isAskingUser() const = 0;
    /// Called whenever isAskingUser() has become false, behind the completion.
    virtual void setAskingEndedHandler(std::function<void()> handler) = 0;
};
