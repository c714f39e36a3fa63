// SPDX-License-Identifier: MIT
// ServiceMessageReceiver is the provider's object on the bus, with the interface of
// docs/dbus/com.quillbay.ServiceProvider.xml. Used inside this folder only.
// Thread: main.  Owner: ServicesRegistration.
#pragma once

#include "platform/services/ServicesRegistration.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QVariantMap>

class ServiceMessageReceiver : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.quillbay.ServiceProvider")

public:
    ServiceMessageReceiver(ServicesProvider &provider, ServicesRegistration::MessageBegins begins,
        ServicesRegistration::MessageEnds ends, ServicesRegistration::BusIsLost busIsLost);

public Q_SLOTS:
    Q_SCRIPTABLE void wordCountSelectedTextService(
        const QVariantMap &pasteboard, const QString &userData, const QVariantMap &options);
    Q_SCRIPTABLE void watchTheTextFileService(
        const QVariantMap &pasteboard, const QString &userData, const QVariantMap &options);
    void busIsLost() { m_busIsLost(); }

private:
    using Service = void (ServicesProvider::*)(const Pasteboard &, const QString &, QString *);
    void handOver(
        Service service, const QVariantMap &pasteboard, const QString &userData, const QVariantMap &options);

    ServicesProvider &m_provider;
    ServicesRegistration::MessageBegins m_begins;
    ServicesRegistration::MessageEnds m_ends;
    ServicesRegistration::BusIsLost m_busIsLost;
};
