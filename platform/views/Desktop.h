// SPDX-License-Identifier: MIT
// Desktop is what window controllers need of the user's desktop besides their own window: screens and
// pointer, alerts, error messages and the file chooser.
// Thread: main.  Owner: main() of a program with windows; outlives all its users.
#pragma once

#include "platform/views/Geometry.h"

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

class Window;

/// A question with buttons. It blocks every other window of the program until the user has answered.
struct Alert {
    QString messageText;
    QString informativeText;
    /// At least one; the first is the default, the last is what Escape presses.
    QStringList buttons;
    /// Title of the alert's window; empty: the name of the program.
    QString windowTitle = {};
};

/// The files that the user may choose from in a file chooser.
struct OpenPanel {
    /// urls: the chosen files, at least one; absent if the user cancelled.
    using Completion = std::function<void(const std::optional<QList<QUrl>> &urls)>;

    /// MIME types; files of derived types are offered too. Empty for all files.
    QStringList allowedFileTypes = {};
    /// MIME types that are offered beside them.
    QStringList otherFileTypes = {};
    /// Folders whose names end in one of these suffixes (without the dot, in any case) are chosen as
    /// documents instead of being opened.
    QStringList packageSuffixes = {};
    bool allowsMultipleSelection = false;
    /// Where the user starts; if it does not exist, the nearest folder above it. Empty: at home.
    QUrl folder = {};
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

    /// window: not null, shared with the result. The result may be destroyed at any time, even while the
    /// window reports a click.
    [[nodiscard]] virtual std::unique_ptr<WindowOnScreen> putOnScreen(std::shared_ptr<Window> window) = 0;

    /// The token of the user's request that is being served (XDG activation, or a startup notification of
    /// X11); the next window that comes to the front uses it to get the focus. Empty for none.
    virtual void setActivationToken(const QByteArray &token) = 0;

    // Points, with the origin at the bottom left of the primary screen, like the frames of windows.
    /// Absent where the desktop does not say: Xwayland knows the pointer only over windows of X clients.
    [[nodiscard]] virtual std::optional<QPointF> pointerLocation() const = 0;
    /// The work area of the screen with the pointer; absent if the desktop does not say which one that is.
    [[nodiscard]] virtual std::optional<QRectF> visibleFrameAtPointer() const = 0;
    /// The work area of the screen at that point, or of the nearest screen.
    [[nodiscard]] virtual QRectF visibleFrameAt(const QPointF &point) const = 0;

    /// Plays the system's alert sound, if there is one.
    virtual void beep() = 0;

    /// Returns at once. The completion is called once, later, unless the program exits first.
    virtual void runAlert(const Alert &alert, AlertCompletion completion) = 0;
    /// Reports an error that the user only has to acknowledge. Returns at once. Each text is reported once in
    /// the life of the program.
    virtual void presentError(const QString &text) = 0;
    /// Shows the desktop's own file chooser beside the other windows; returns at once. The completion is
    /// called once, later, unless the program exits first.
    virtual void beginOpenPanel(const OpenPanel &panel, OpenPanel::Completion completion) = 0;

    /// Whether an alert, an error or a file chooser waits for the user.
    [[nodiscard]] virtual bool isAskingUser() const = 0;
    /// Called whenever isAskingUser() has become false, after the completion.
    virtual void setAskingEndedHandler(std::function<void()> handler) = 0;
};
