// SPDX-License-Identifier: MIT
// ProviderApplication runs the service provider on the session bus: it passes the service messages to the
// delegate and quits the program when nothing is open.
// Thread: main.  Owner: main(); destroyed before the QApplication.
#pragma once

#include "front_end/QBYServiceProviderAppDelegate.h"
#include "platform/services/ServicesRegistration.h"

#include <QObject>

#include <memory>

/// Waits for its first request without a timeout, since the bus has started it for one. After that it quits
/// as soon as there is no window, no watcher and no question to the user.
class ProviderApplication : public QObject {
public:
    /// Everything that surroundings refer to outlives this object.
    explicit ProviderApplication(const WatchSurroundings &surroundings);
    ~ProviderApplication() override;

    /// Offers the services. On failure logs the reason and returns false.
    [[nodiscard]] bool start();

    [[nodiscard]] const QBYServiceProviderAppDelegate &delegate() const { return m_delegate; }

private:
    [[nodiscard]] bool offer(ServicesProvider &provider);
    void beginRequest(const QByteArray &activationToken);
    void endRequest();
    /// From the event loop: code of the finished object may still be running.
    void scheduleQuitIfUnused();
    void quitIfUnused();
    [[nodiscard]] bool isUsed() const;

    Desktop &m_desktop;
    QBYServiceProviderAppDelegate m_delegate;
    std::unique_ptr<ServicesRegistration> m_registration;
    bool m_isOffered = false;
    bool m_hasHadRequest = false;
};
