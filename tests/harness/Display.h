// SPDX-License-Identifier: MIT
// TestDisplay is a private X display for the tests of one process: a real Xvfb of 1280 by 800 pixels that
// nobody else uses, with the window manager openbox in its default configuration, a pointer and a keyboard.
// Thread: main.  Owner: itself; started by the first use, stopped at the end of the test program.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class TestDisplay {
public:
    /// Starts the display if it does not run yet and puts its name into the environment of this test. Returns
    /// the name; fails the test and returns an empty one if the display cannot be started.
    static QString start();
    /// To be called when no program uses the display any more.
    static void stop();

    /// Moves the pointer and presses buttons and keys like a user, with the commands of xdotool(1). Returns
    /// before the events have arrived.
    static void xdotool(const QStringList &commands);

    /// What a program such as xprop(1) or xwininfo(1) prints about the display.
    static QByteArray outputOf(const QString &program, const QStringList &arguments);
};
