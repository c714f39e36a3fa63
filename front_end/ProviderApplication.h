// SPDX-License-Identifier: MIT
// ProviderApplication is the life of the service provider on the session bus: it hands the service messages
// to the delegate, and leaves when nothing is left that they have opened. Thread: main.  Owner: main(),
// behind the QApplication; ends before it.
#pragma once

#include "front_end/QBYServiceProviderAppDelegate.h"
#include "platform/services/ServicesRegistration.h"

#include <QObject>

#include <memory>

/// Stays until its first request has come, however long that takes: the bus has started it for one. After
/// that it leaves as soon as there is no window, no watcher and no question to the user.
class ProviderApplication : public QObject {
public:
    /// What surroundings refer to outlives the application.
    explicit ProviderApplication(const WatchSurroundings &surroundings);
    ~ProviderApplication() override;

    /// Offers the services. False, with a line in the log, where they cannot be offered.
    [[nodiscard]] bool start();

    [[nodiscard]] const QBYServiceProviderAppDelegate &delegate() const { return m_delegate; }

private:
    [[nodiscard]] bool offer(ServicesProvider &provider);
    void requestBegins(const QByteArray &activationToken);
    void requestEnds();
    /// From the event loop: what has ended may still be running.
    void leaveSoonIfUnused();
    void leaveIfUnused();
    [[nodiscard]] bool isUsed() const;

    Desktop &m_desktop;
    QBYServiceProviderAppDelegate m_delegate;
    std::unique_ptr<ServicesRegistration> m_registration;
    bool m_isOffered = false;
    bool m_hasBeenAsked = false;
};
