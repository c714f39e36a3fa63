// SPDX-License-Identifier: MIT
#include "platform/session_bus/RemoteObjectConnection.h"

#include "platform/session_bus/RemoteChannel.h"

void RemoteObjectProxy::send(
    RemoteRequest request, RemoteReplyHandler handler, RemoteErrorHandler errorHandler) const
{
    m_channel->send(m_interface, std::move(request), std::move(handler), std::move(errorHandler));
}

RemoteObjectConnection::RemoteObjectConnection(const QString &serviceName)
    : m_channel(RemoteChannel::make(serviceName))
{
}

RemoteObjectConnection::~RemoteObjectConnection()
{
    invalidate();
}

void RemoteObjectConnection::resume()
{
    m_channel->resume();
}

void RemoteObjectConnection::invalidate()
{
    m_channel->close();
}
