// SPDX-License-Identifier: MIT
#include "platform/services/ServicesRegistration.h"

#include "platform/logging/LogChannel.h"
#include "platform/services/ServiceInterface.h"
#include "platform/services/ServiceMessageReceiver.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusError>

#include <utility>

ServicesRegistration::ServicesRegistration(
    ServicesProvider &provider, RequestBegins begins, RequestEnds ends, BusIsLost busIsLost)
    : m_receiver(std::make_unique<ServiceMessageReceiver>(
        provider, std::move(begins), std::move(ends), std::move(busIsLost)))
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), m_receiver.get(),
        SLOT(busIsLost()));
    // The object comes before the name: messages may be waiting for it.
    bus.registerObject(
        ServiceInterface::objectPath(), m_receiver.get(), QDBusConnection::ExportScriptableSlots);
}

ServicesRegistration::~ServicesRegistration()
{
    QDBusConnection::sessionBus().unregisterObject(ServiceInterface::objectPath());
}

bool ServicesRegistration::start()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    const bool isOnBus = bus.isConnected()
        && bus.objectRegisteredAt(ServiceInterface::objectPath()) == m_receiver.get()
        && bus.registerService(ServiceInterface::busName());
    if (!isOnBus) {
        const QString cause = bus.lastError().message();
        LogChannel::standard().error(u"The bus name {} cannot be acquired: {}",
            {publicly(ServiceInterface::busName()),
                publicly(cause.isEmpty() ? QStringLiteral("another process has it") : cause)});
    }
    return isOnBus;
}

void ServicesRegistration::giveNameAway()
{
    // Behind the bus's answer to this comes no message any more, and all before it are in our queue.
    QDBusConnection::sessionBus().unregisterService(ServiceInterface::busName());
    QCoreApplication::sendPostedEvents();
}
