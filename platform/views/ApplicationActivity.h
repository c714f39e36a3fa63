// SPDX-License-Identifier: MIT
// ApplicationActivity says whether the application is the one that the user works with, and when that
// changes. It is told by whoever knows: in a program with windows, from
// QGuiApplication::applicationStateChanged. Thread: main.  Owner: the program; it outlives all who listen.
#pragma once

#include <QObject>

class ApplicationActivity : public QObject {
    Q_OBJECT

public:
    /// isActive: at the start.
    explicit ApplicationActivity(bool isActive, QObject *parent = nullptr)
        : QObject(parent)
        , m_isActive(isActive)
    {
    }

    [[nodiscard]] bool isActive() const { return m_isActive; }
    /// Tells everybody; being told once more what it is already tells nobody.
    void setActive(bool isActive);

Q_SIGNALS:
    /// isActive() is still true.
    void willResignActive();
    /// isActive() is true.
    void didBecomeActive();

private:
    bool m_isActive;
};
