// SPDX-License-Identifier: MIT
// DesktopAppearance gives the program the dark or light colours that the user prefers, and follows changes.
// It asks the desktop portal (color-scheme in org.freedesktop.appearance of org.freedesktop.portal.Settings)
// without ever blocking; without a portal the program keeps the desktop's palette.
// Thread: main.  Owner: main() of a program with windows.
#pragma once

#include <QDBusConnection>
#include <QObject>

class QDBusMessage;
class QDBusPendingCallWatcher;

enum class ColorScheme {
    NoPreference,
    Dark,
    Light,
};

/// Sets the program's palette: that of the desktop if it is of the wanted scheme, otherwise one of
/// Quillbay's.
void applyColorScheme(ColorScheme scheme);

class DesktopAppearance : public QObject {
    Q_OBJECT

public:
    explicit DesktopAppearance(QDBusConnection sessionBus = QDBusConnection::sessionBus());

    /// NoPreference until the portal has answered.
    [[nodiscard]] ColorScheme colorScheme() const { return m_colorScheme; }

Q_SIGNALS:
    void colorSchemeDidChange();

private Q_SLOTS:
    void handleSetting(const QDBusMessage &signal);

private:
    void requestColorScheme();
    void handleReply(QDBusPendingCallWatcher *watcher);
    void setColorScheme(ColorScheme scheme);

    QDBusConnection m_bus;
    ColorScheme m_colorScheme = ColorScheme::NoPreference;
};
