// SPDX-License-Identifier: MIT
// NotificationObserver hears every notification of one name, from any process of the user's session.
// Thread: any that runs an event loop; it belongs to the thread that made it.  Owner: whoever listens.
#pragma once

#include <QObject>
#include <QString>

/// Deaf where there was no session bus when it was made, and once that bus has gone; see
/// DistributedNotificationCenter for what the log says then.
class NotificationObserver : public QObject {
    Q_OBJECT

public:
    /// Hears what is posted after this returns. name: as for DistributedNotificationCenter::post().
    explicit NotificationObserver(QString name, QObject *parent = nullptr);
    NotificationObserver(const NotificationObserver &) = delete;
    NotificationObserver &operator=(const NotificationObserver &) = delete;
    /// Nothing is heard any more, not even what has arrived already.
    ~NotificationObserver() override;

Q_SIGNALS:
    /// Once for every post; never from inside post() itself.
    void posted();

private Q_SLOTS:
    void deliver();

private:
    const QString m_name;
};
