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
    ServicesProvider &provider, MessageBegins begins, MessageEnds ends, BusIsLost busIsLost)
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
        LogChannel::standard().error(u"Cannot acquire bus name {}: {}",
            {publicly(ServiceInterface::busName()),
                publicly(cause.isEmpty() ? QStringLiteral("another process owns it") : cause)});
    }
    return isOnBus;
}

void ServicesRegistration::giveNameAway()
{
    // After its answer the bus sends no more messages; those sent before are in the event queue.
    QDBusConnection::sessionBus().unregisterService(ServiceInterface::busName());
    QCoreApplication::sendPostedEvents();
}
