// SPDX-License-Identifier: MIT
// ServiceMessageReceiver is the provider as the bus sees it: the interface of
// docs/dbus/com.quillbay.ServiceProvider.xml.
// Thread: main.  Owner: ServicesRegistration. Used inside this folder only.
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
    ServiceMessageReceiver(ServicesProvider &provider, ServicesRegistration::RequestBegins begins,
        ServicesRegistration::RequestEnds ends, ServicesRegistration::BusIsLost busIsLost);

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
    ServicesRegistration::RequestBegins m_begins;
    ServicesRegistration::RequestEnds m_ends;
    ServicesRegistration::BusIsLost m_busIsLost;
};
