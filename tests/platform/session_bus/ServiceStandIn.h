// SPDX-License-Identifier: MIT
// ServiceStandIn puts a service on the private bus that answers as planned by the test and records its
// requests. The bus starts it with the first request, like a real one, and again when it has died.
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
        int seals; ///< see F_GET_SEALS
        qint64 length;
        bool isAbsent;
        QVariantMap options;
    };

    /// Starts the private bus. plan: a line for every request; see service_stand_in.cpp.
    ServiceStandIn(const QString &serviceName, const QByteArrayList &plan);
    ServiceStandIn(const ServiceStandIn &) = delete;
    ServiceStandIn &operator=(const ServiceStandIn &) = delete;
    /// Makes the service exit, and waits until all its processes have disconnected from the bus.
    ~ServiceStandIn();

    /// The requests to all processes of the service so far, in order.
    [[nodiscard]] std::vector<Request> requests() const;
    /// Waits for this number of requests, and fails the test if they do not arrive.
    void waitForRequests(size_t count) const;

    /// Answers the held requests.
    void release() const { send(QStringLiteral("release")); }
    /// Makes the service exit; the next request starts it again.
    void quit() const { send(QStringLiteral("quit")); }

    /// Whether a client is still on the bus.
    [[nodiscard]] bool isOnTheBus(const QString &client) const;

private:
    void send(const QString &signal) const;

    QString m_folder;
    QDBusConnection m_bus;
};
