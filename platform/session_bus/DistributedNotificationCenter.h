// SPDX-License-Identifier: MIT
// DistributedNotificationCenter posts notifications to every process of the user's session, and
// NotificationObserver receives them. A notification has a name and no content.
// Thread: any.
#pragma once

#include <QObject>
#include <QString>

/// A notification is a signal on the session bus, described in docs/dbus/. It needs a QCoreApplication. If
/// there is none, or no bus, notifications are not delivered, and the log gets one line until that has
/// changed.
class DistributedNotificationCenter {
public:
    /// Reaches every observer of this name that exists at the call, in this process too, on the observers'
    /// own event loops and in the order of this thread's posts. When it returns, the bus has the notification
    /// and the process may exit. It takes one round trip to the bus, and never more than two seconds. name: a
    /// D-Bus member name: 1 to 255 letters, digits and underscores, the first not a digit.
    static void post(const QString &name);
};

/// Receives every notification of one name, from any process of the user's session, on the thread that made
/// the observer; that thread must run an event loop. Receives nothing if there was no session bus when it was
/// made, or once that bus is lost.
class NotificationObserver : public QObject {
    Q_OBJECT

public:
    /// Receives what is posted after this returns. name: as for DistributedNotificationCenter::post().
    explicit NotificationObserver(QString name, QObject *parent = nullptr);
    NotificationObserver(const NotificationObserver &) = delete;
    NotificationObserver &operator=(const NotificationObserver &) = delete;
    /// Drops what has arrived and was not delivered yet.
    ~NotificationObserver() override;

Q_SIGNALS:
    /// Once for every post; never from inside post() itself.
    void posted();

private Q_SLOTS:
    void deliver();

private:
    const QString m_name;
};
