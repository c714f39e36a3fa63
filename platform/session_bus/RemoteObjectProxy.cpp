// SPDX-License-Identifier: MIT
#include "platform/session_bus/RemoteObjectProxy.h"

#include "platform/session_bus/ServiceChannel.h"

void RemoteObjectProxy::send(ServiceRequest request, ServiceReplyHandler handler) const
{
    m_channel->send(m_interface, std::move(request), std::move(handler));
}
