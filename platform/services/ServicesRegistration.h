// SPDX-License-Identifier: MIT
// ServicesRegistration brings the service messages of the session bus to the provider. Which services there
// are, ServiceInterface.h and docs/dbus say. Thread: main.  Owner: the provider's program; refers to the
// provider, who outlives it.
#pragma once

#include "platform/services/ServicesProvider.h"

#include <QByteArray>

#include <functional>
#include <memory>

class ServiceMessageReceiver;

class ServicesRegistration {
public:
    /// Runs before a message is handed over, with the activation token of the request, which may be empty.
    using RequestBegins = std::function<void(const QByteArray &activationToken)>;
    /// Runs behind each message, done or refused.
    using RequestEnds = std::function<void()>;

    /// Runs when the bus goes away.
    using BusIsLost = std::function<void()>;

    ServicesRegistration(
        ServicesProvider &provider, RequestBegins begins, RequestEnds ends, BusIsLost busIsLost);
    ServicesRegistration(const ServicesRegistration &) = delete;
    ServicesRegistration &operator=(const ServicesRegistration &) = delete;
    ~ServicesRegistration();

    /// From now on messages come, from the event loop. False, with a line in the log, where there is no bus
    /// or the name is somebody else's.
    [[nodiscard]] bool start();

    /// Gives the name away. When this returns, every message that the bus has let through has been handed
    /// over; later ones go to the next owner of the name. start() takes it back.
    void giveNameAway();

private:
    std::unique_ptr<ServiceMessageReceiver> m_receiver;
};
