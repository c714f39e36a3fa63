// SPDX-License-Identifier: MIT
#include "platform/connection/RemoteObjectProxy.h"

#include "platform/connection/ServiceChannel.h"

void RemoteObjectProxy::send(ServiceRequest request, ServiceReplyHandler handler) const
{
    m_channel->send(m_interface, std::move(request), std::move(handler));
}
