// SPDX-License-Identifier: MIT
// QBYServiceProviderAppDelegate does what the services are asked for, and keeps alive what they open: it owns
// every window of statistics and every watcher until they say that they are done.
// Thread: main.  Owner: main(); outlives the event loop.
#pragma once

#include "front_end/stats_window/QBYServiceProviderShowStatsWindowController.h"
#include "front_end/stats_window/QBYServiceProviderShowStatsWindowControllerDelegate.h"
#include "platform/services/ServicesProvider.h"
#include "platform/views/Desktop.h"

#include <functional>
#include <memory>
#include <vector>

class QBYServiceProviderAppDelegate final : public QBYServiceProviderShowStatsWindowControllerDelegate,
                                            public ServicesProvider {
public:
    using StatWindowControllers = std::vector<std::shared_ptr<QBYServiceProviderShowStatsWindowController>>;

    /// setServicesProvider: makes its argument the one to whom service messages come. desktop: outlives the
    /// delegate.
    QBYServiceProviderAppDelegate(
        Desktop &desktop, std::function<void(ServicesProvider &provider)> setServicesProvider);
    ~QBYServiceProviderAppDelegate() override;

    /// One a request, in the order of the requests.
    [[nodiscard]] const StatWindowControllers &statWindowControllerForSelectedText() const
    {
        return m_statWindowControllerForSelectedText;
    }

    /// From here on services are offered.
    void applicationDidFinishLaunching();
    [[nodiscard]] static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }

    /// Whether a service has left something behind that still lives.
    [[nodiscard]] bool isInUse() const { return !m_statWindowControllerForSelectedText.empty(); }
    /// Called whenever something has left a registry.
    void setSomethingEndedHandler(std::function<void()> handler) { m_somethingEnded = std::move(handler); }

    // userData: ignored. error: takes the message of a failure, and stays as it is without one; may be null.
    /// Opens a window with the counts of the pasteboard's text. Each request opens one of its own.
    void wordCountSelectedTextService(
        const Pasteboard &pasteboard, const QString &userData, QString *error) override;
    void watchTheTextFileService(
        const Pasteboard &pasteboard, const QString &userData, QString *error) override;

    void serviceProviderShowStatsWindowControllerDidClose(
        QBYServiceProviderShowStatsWindowController &controller) override;

private:
    Desktop &m_desktop;
    std::function<void(ServicesProvider &provider)> m_setServicesProvider;
    std::function<void()> m_somethingEnded;
    StatWindowControllers m_statWindowControllerForSelectedText;
};
