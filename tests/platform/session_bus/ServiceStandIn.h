// SPDX-License-Identifier: MIT
// ServiceStandIn puts a service on the private bus that does what the test plans and notes down what it is
// asked. The bus starts it with the first request, as it starts a real one, and again when it has died.
// Thread: main.  Owner: the test.
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QDBusConnection>
#include <QString>
#include <QVariantMap>

#include <vector>

class ServiceStandIn {
public:
    struct Request {
        QString path;
        QString interface;
        QString method;
        QString signature;
        QString client; ///< its unique name on the bus
        QString service; ///< the unique name of the process that was asked
        qint64 size; ///< bytes of the memory file
        QByteArray hash; ///< SHA-1 of the memory file, in hexadecimal digits
        int seals; ///< as F_GET_SEALS tells
        qint64 length;
        bool isAbsent;
        QVariantMap options;
    };

    /// Starts the private bus. plan: a line for every request; see service_stand_in.cpp.
    ServiceStandIn(QString serviceName, const QByteArrayList &plan);
    ServiceStandIn(const ServiceStandIn &) = delete;
    ServiceStandIn &operator=(const ServiceStandIn &) = delete;
    /// Ends the service, and waits until all its processes have left the bus.
    ~ServiceStandIn();

    /// What has arrived so far, with all processes of the service, in order.
    [[nodiscard]] std::vector<Request> requests() const;
    /// Waits until so many requests have arrived, and fails the test if they do not.
    void waitForRequests(size_t count) const;

    /// Answers what is held.
    void release() const { send(QStringLiteral("release")); }
    /// Ends the service; the next request starts it again.
    void quit() const { send(QStringLiteral("quit")); }

    /// Whether a client is still on the bus.
    [[nodiscard]] bool isOnTheBus(const QString &client) const;

private:
    void send(const QString &signal) const;

    QString m_folder;
    QDBusConnection m_bus;
};
