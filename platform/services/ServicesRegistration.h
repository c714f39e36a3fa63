// SPDX-License-Identifier: MIT
// ServicesRegistration delivers the service messages of the session bus to the provider. ServiceInterface.h
// and docs/dbus/ describe the services.
// Thread: main.  Owner: the provider's program; the provider must outlive it.
#pragma once

#include "platform/services/ServicesProvider.h"

#include <QByteArray>

#include <functional>
#include <memory>

class ServiceMessageReceiver;

class ServicesRegistration {
public:
    /// Runs before a message is delivered, with its activation token, which may be empty.
    using MessageBegins = std::function<void(const QByteArray &activationToken)>;
    /// Runs after each message, done or refused.
    using MessageEnds = std::function<void()>;
    /// Runs when the bus is lost.
    using BusIsLost = std::function<void()>;

    ServicesRegistration(
        ServicesProvider &provider, MessageBegins begins, MessageEnds ends, BusIsLost busIsLost);
    ServicesRegistration(const ServicesRegistration &) = delete;
    ServicesRegistration &operator=(const ServicesRegistration &) = delete;
    ~ServicesRegistration();

    /// From now on messages are delivered, by the event loop. False, with a line in the log, if there is no
    /// bus or another process owns the name.
    [[nodiscard]] bool start();

    /// Releases the bus name. When this returns, every message that the bus has sent is delivered; later ones
    /// go to the next owner of the name. start() acquires it again.
    void giveNameAway();

private:
    std::unique_ptr<ServiceMessageReceiver> m_receiver;
};
