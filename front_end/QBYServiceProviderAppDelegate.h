// SPDX-License-Identifier: MIT
// QBYServiceProviderAppDelegate serves the service messages and owns what they open: every statistics window
// and every watcher, until they report that they are finished. When the program exits is left to
// ProviderApplication.
// Thread: main.  Owner: ProviderApplication; outlives the event loop.
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

    /// setServicesProvider: makes its argument the receiver of service messages. Everything that surroundings
    /// refer to outlives the delegate.
    QBYServiceProviderAppDelegate(
        WatchSurroundings surroundings, std::function<void(ServicesProvider &provider)> setServicesProvider);
    ~QBYServiceProviderAppDelegate() override;

    /// One per request, in the order of the requests.
    [[nodiscard]] const StatWindowControllers &statWindowControllerForSelectedText() const
    {
        return m_statWindowControllerForSelectedText;
    }
    void setStatWindowControllerForSelectedText(StatWindowControllers controllers)
    {
        m_statWindowControllerForSelectedText = std::move(controllers);
    }
    /// One per watched file, in the order in which they were made.
    [[nodiscard]] const WatchTextFileControllers &watchTextFileControllers() const
    {
        return m_watchTextFileControllers;
    }
    void setWatchTextFileControllers(WatchTextFileControllers controllers)
    {
        m_watchTextFileControllers = std::move(controllers);
    }

    /// Offers the services from now on.
    void applicationDidFinishLaunching();
    [[nodiscard]] static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }

    /// Whether a window or a watcher is open.
    [[nodiscard]] bool isInUse() const
    {
        return !m_statWindowControllerForSelectedText.empty() || !m_watchTextFileControllers.empty();
    }
    /// Called whenever a window or a watcher has finished.
    void setFinishedHandler(std::function<void()> handler) { m_finishedHandler = std::move(handler); }

    // userData: ignored. error: receives the message of a failure, unchanged otherwise; may be null.
    /// Opens a window with the counts of the pasteboard's text, one per request. The text is read on a thread
    /// of its own; a text that is not read at once gets a window that waits for it. If it turns out not to be
    /// readable then, its window closes, and the message of the failure is shown to the user.
    void wordCountSelectedTextService(
        const Pasteboard &pasteboard, const QString &userData, QString *error) override;
    /// Opens a watcher for each file of the pasteboard that is of an accepted kind, or brings the window of
    /// its watcher to the front. Files are compared by path.
    void watchTheTextFileService(
        const Pasteboard &pasteboard, const QString &userData, QString *error) override;
    /// Null if no watcher follows the file.
    [[nodiscard]] std::shared_ptr<WatchTextFileMenuBarController> _existingWatchTextFileControllerForURL(
        const QUrl &url) const;

    void serviceProviderShowStatsWindowControllerDidClose(
        QBYServiceProviderShowStatsWindowController &controller) override;
    void watchTextFileMenuBarControllerDidFinish(WatchTextFileMenuBarController &controller) override;

private:
    using StatWindowController = std::shared_ptr<QBYServiceProviderShowStatsWindowController>;

    /// pasteboard: the text's, which may name the file that it comes from.
    void open(const StatWindowController &controller, const Pasteboard &pasteboard);
    void watch(const QUrl &url);
    void reportFinished();

    const WatchSurroundings m_surroundings;
    std::function<void(ServicesProvider &provider)> m_setServicesProvider;
    std::function<void()> m_finishedHandler;
    StatWindowControllers m_statWindowControllerForSelectedText;
    WatchTextFileControllers m_watchTextFileControllers;
};
