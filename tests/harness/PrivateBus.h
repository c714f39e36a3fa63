// SPDX-License-Identifier: MIT
// PrivateBus is a session bus for one test, which the test can stop or suspend.
// Thread: main.  Owner: the test.
#pragma once

#include <QByteArray>
#include <QProcess>

class PrivateBus {
public:
    /// Starts the bus, or fails the test. Does not change the environment.
    PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;
    ~PrivateBus();

    /// All buses of a test have the same address, so that one can replace another.
    [[nodiscard]] const QByteArray &address() const { return m_address; }

    void stop();
    /// A suspended bus keeps its connections and does not answer.
    void suspend() const;
    void resume() const;

private:
    QProcess m_daemon;
    QByteArray m_address;
};
