// SPDX-License-Identifier: MIT
#include "platform/session_bus/NotificationObserver.h"

#include "platform/session_bus/SessionBusConnection.h"

#include <utility>

NotificationObserver::NotificationObserver(QString name, QObject *parent)
    : QObject(parent)
    , m_name(std::move(name))
{
    auto connection = SessionBusConnection::connected();
    if (!connection)
        return;
    connection->connect(
        {}, SessionBusConnection::path(), SessionBusConnection::interface(), m_name, this, SLOT(deliver()));
    SessionBusConnection::settle(*connection);
}

NotificationObserver::~NotificationObserver()
{
    SessionBusConnection::current().disconnect(
        {}, SessionBusConnection::path(), SessionBusConnection::interface(), m_name, this, SLOT(deliver()));
}

void NotificationObserver::deliver()
{
    Q_EMIT posted();
}
