// SPDX-License-Identifier: MIT
#include "platform/session_bus/ServiceConnection.h"

#include "platform/session_bus/ServiceChannel.h"

ServiceConnection::ServiceConnection(const QString &serviceName)
    : m_channel(ServiceChannel::make(serviceName))
{
}

ServiceConnection::~ServiceConnection()
{
    invalidate();
}

void ServiceConnection::resume()
{
    m_channel->resume();
}

void ServiceConnection::invalidate()
{
    m_channel->close();
}
