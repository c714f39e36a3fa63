// SPDX-License-Identifier: MIT
// ApplicationActivity holds whether the application is the one that the user works with, and signals changes;
// finding that out is left to its source, which calls setActive().
// Thread: main.  Owner: main(); outlives all listeners.
#pragma once

#include <QObject>

class ApplicationActivity : public QObject {
    Q_OBJECT

public:
    /// isActive: the state at the start.
    explicit ApplicationActivity(bool isActive, QObject *parent = nullptr)
        : QObject(parent)
        , m_isActive(isActive)
    {
    }

    [[nodiscard]] bool isActive() const { return m_isActive; }
    /// Signals only a change.
    void setActive(bool isActive)
    {
        if (isActive == m_isActive)
            return;
        if (!isActive)
            Q_EMIT willResignActive();
        m_isActive = isActive;
        if (isActive)
            Q_EMIT didBecomeActive();
    }

Q_SIGNALS:
    /// isActive() is still true.
    void willResignActive();
    /// isActive() is true.
    void didBecomeActive();

private:
    bool m_isActive;
};
