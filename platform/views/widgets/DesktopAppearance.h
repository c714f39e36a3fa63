// SPDX-License-Identifier: MIT
// DesktopAppearance gives the program the dark or light colours that the user wants, and follows every
// change. It asks the desktop portal (org.freedesktop.portal.Settings, color-scheme in
// org.freedesktop.appearance) without ever waiting for it; without a portal the program keeps the desktop's
// palette. Thread: main.  Owner: main() of a program with windows.
#pragma once

#include "platform/views/widgets/ColorSchemePalette.h"

#include <QDBusConnection>
#include <QObject>

class QDBusMessage;
class QDBusPendingCallWatcher;

class DesktopAppearance : public QObject {
    Q_OBJECT

public:
    explicit DesktopAppearance(const QDBusConnection &sessionBus = QDBusConnection::sessionBus());

    /// NoPreference until the portal has answered.
    [[nodiscard]] ColorScheme colorScheme() const { return m_colorScheme; }

Q_SIGNALS:
    void colorSchemeDidChange();

private Q_SLOTS:
    void takeSetting(const QDBusMessage &signal);

private:
    void ask();
    void takeAnswer(QDBusPendingCallWatcher *watcher);
    void setColorScheme(ColorScheme scheme);

    QDBusConnection m_bus;
    ColorScheme m_colorScheme = ColorScheme::NoPreference;
};
