// SPDX-License-Identifier: MIT
#include "platform/services/ServiceMessageReceiver.h"

#include "platform/services/PasteboardWire.h"
#include "platform/services/ServiceInterface.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>

#include <utility>

ServiceMessageReceiver::ServiceMessageReceiver(ServicesProvider &provider,
    ServicesRegistration::MessageBegins begins, ServicesRegistration::MessageEnds ends,
    ServicesRegistration::BusIsLost busIsLost)
    : m_provider(provider)
    , m_begins(std::move(begins))
    , m_ends(std::move(ends))
    , m_busIsLost(std::move(busIsLost))
{
    // Without it Qt D-Bus does not know the type by its name.
    qRegisterMetaType<QDBusUnixFileDescriptor>("QDBusUnixFileDescriptor");
}

void ServiceMessageReceiver::wordCountSelectedTextService(
    const QVariantMap &pasteboard, const QString &userData, const QVariantMap &options)
{
    handOver(&ServicesProvider::wordCountSelectedTextService, pasteboard, userData, options);
}

void ServiceMessageReceiver::watchTheTextFileService(
    const QVariantMap &pasteboard, const QString &userData, const QVariantMap &options)
{
    handOver(&ServicesProvider::watchTheTextFileService, pasteboard, userData, options);
}

void ServiceMessageReceiver::handOver(
    Service service, const QVariantMap &pasteboard, const QString &userData, const QVariantMap &options)
{
    m_begins(options.value(ServiceInterface::activationTokenOption()).toString().toUtf8());
    // An invalid pasteboard is handed over as an empty one: the service then reports what is missing.
    QString error;
    (m_provider.*service)(PasteboardWire::fromMessage(pasteboard).value_or(Pasteboard()), userData, &error);
    if (!error.isEmpty() && calledFromDBus())
        sendErrorReply(ServiceInterface::failureName(), error);
    m_ends();
}
