// SPDX-License-Identifier: MIT
// SessionBus is a private D-Bus session bus for the tests of one process: a real dbus-daemon that nobody else
// uses, with services started from the test's own XDG_DATA_HOME/dbus-1/services.
// Thread: main.  Owner: itself; started by the first use, stopped at the end of the test program.
#pragma once

#include <QString>

class SessionBus {
public:
    /// Starts the bus if it does not run yet and puts its address into the environment of this test.
    /// Returns the address; fails the test and returns an empty one if the bus cannot be started.
    static QString start();
    static void stop();
};
