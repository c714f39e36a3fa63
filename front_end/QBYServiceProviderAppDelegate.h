// SPDX-License-Identifier: MIT
// QBYServiceProviderAppDelegate does what the services are asked for, and keeps alive what they open: it owns
// every window of statistics and every watcher until they say that they are done.
// Thread: main.  Owner: main(); outlives the event loop.
#pragma once

#include "front_end/QBYServiceProviderShowStatsWindowController.h"
#include "front_end/QBYServiceProviderShowStatsWindowControllerDelegate.h"
#include "platform/services/ServicesProvider.h"
#include "watching/windows/WatchTextFileMenuBarController.h"
#include "watching/windows/WatchTextFileMenuBarControllerDelegate.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QBYServiceProviderAppDelegate final : public QBYServiceProviderShowStatsWindowControllerDelegate,
                                            public WatchTextFileMenuBarControllerDelegate,
                                            public ServicesProvider {
public:
    using StatWindowControllers = std::vector<std::shared_ptr<QBYServiceProviderShowStatsWindowController>>;

    using WatchTextFileControllers = std::vector<std::shared_ptr<WatchTextFileMenuBarController>>;

    /// setServicesProvider: makes its argument the one to whom service messages come. What surroundings refer
    /// to outlives the delegate.
    QBYServiceProviderAppDelegate(const WatchSurroundings &surroundings,
        std::function<void(ServicesProvider &provider)> setServicesProvider);
    ~QBYServiceProviderAppDelegate() override;

    /// One a request, in the order of the requests.
    [[nodiscard]] const StatWindowControllers &statWindowControllerForSelectedText() const
    {
        return m_statWindowControllerForSelectedText;
    }
    void setStatWindowControllerForSelectedText(StatWindowControllers controllers)
    {
        m_statWindowControllerForSelectedText = std::move(controllers);
    }
    /// One a watched file, in the order in which they were made.
    [[nodiscard]] const WatchTextFileControllers &watchTextFileControllers() const
    {
        return m_watchTextFileControllers;
    }
    void setWatchTextFileControllers(WatchTextFileControllers controllers)
    {
        m_watchTextFileControllers = std::move(controllers);
    }

    /// From here on services are offered.
    void applicationDidFinishLaunching();
    [[nodiscard]] static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }

    /// Whether a service has left something behind that still lives.
    [[nodiscard]] bool isInUse() const
    {
        return !m_statWindowControllerForSelectedText.empty() || !m_watchTextFileControllers.empty();
    }
    /// Called whenever something has left a registry.
    void setSomethingEndedHandler(std::function<void()> handler) { m_somethingEnded = std::move(handler); }

    // userData: ignored. error: takes the message of a failure, and stays as it is without one; may be null.
    /// Opens a window with the counts of the pasteboard's text. Each request opens one of its own.
    void wordCountSelectedTextService(
        const Pasteboard &pasteboard, const QString &userData, QString *error) override;
    /// Opens a window for each file of the pasteboard that is of an accepted kind, or brings forward the one
    /// that follows it already. A file is the same only under the same path.
    void watchTheTextFileService(
        const Pasteboard &pasteboard, const QString &userData, QString *error) override;
    /// Null where nobody follows the file.
    [[nodiscard]] std::shared_ptr<WatchTextFileMenuBarController> _existingWatchTextFileControllerForURL(
        const QUrl &url) const;

    void serviceProviderShowStatsWindowControllerDidClose(
        QBYServiceProviderShowStatsWindowController &controller) override;
    void watchTextFileMenuBarControllerDidFinish(WatchTextFileMenuBarController &controller) override;

private:
    void watch(const QUrl &url);
    void tellThatSomethingEnded();

    const WatchSurroundings m_surroundings;
    std::function<void(ServicesProvider &provider)> m_setServicesProvider;
    std::function<void()> m_somethingEnded;
    StatWindowControllers m_statWindowControllerForSelectedText;
    WatchTextFileControllers m_watchTextFileControllers;
};
