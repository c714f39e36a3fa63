// SPDX-License-Identifier: MIT
// PrivateBus is a session bus of one test, which the test may end or halt.
// Thread: main.  Owner: the test.
#pragma once

#include <QByteArray>
#include <QProcess>

class PrivateBus {
public:
    /// Starts the bus; fails the test if that cannot be done. The environment stays as it is.
    PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;
    ~PrivateBus();

    /// Every bus of a test has the same one: the next may stand in for the last.
    [[nodiscard]] const QByteArray &address() const { return m_address; }

    void end();
    /// It keeps its connections and answers nobody.
    void halt() const;
    void goOn() const;

private:
    QProcess m_daemon;
    QByteArray m_address;
};
