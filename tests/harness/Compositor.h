// SPDX-License-Identifier: MIT
// TestCompositor is a private Wayland compositor without a screen: sway(1), with data control, for the
// programs that a test starts and for this process. Starts in a tenth of a second.
// Thread: main.  Owner: the test.
#pragma once

#include <QByteArrayList>
#include <QProcess>
#include <QString>

class TestCompositor {
public:
    /// Whether sway and wtype are installed; see SKIP_WITHOUT_PACKAGE.
    static bool isInstalled();
    static constexpr char packages[] = "sway, wtype";

    /// Starts it and sets WAYLAND_DISPLAY, or fails the test. It has a keyboard, for pressKey().
    TestCompositor();
    TestCompositor(const TestCompositor &) = delete;
    TestCompositor &operator=(const TestCompositor &) = delete;
    ~TestCompositor();

    /// Presses a letter for the window that has the focus.
    static void pressKey();

    /// While suspended it keeps its connections and does not answer.
    void suspend() const;
    void resume() const;

private:
    QProcess m_compositor;
    QProcess m_keyboard;
};
