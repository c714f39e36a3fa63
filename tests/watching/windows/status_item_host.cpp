// SPDX-License-Identifier: MIT
// status_item_host FILE…: watches each file with a status item. Exits after the last watcher.
#include "platform/views/widgets/ApplicationActivitySource.h"
#include "platform/views/widgets/DesktopAppearance.h"
#include "platform/views/widgets/TrayStatusBar.h"
#include "platform/views/widgets/WidgetDesktop.h"
#include "watching/windows/WatchTextFileMenuBarController.h"

#include <QApplication>

#include <vector>

namespace {

class Registry : public WatchTextFileMenuBarControllerDelegate {
public:
    void add(const WatchSurroundings &surroundings, const QUrl &file)
    {
        m_watchers.push_back(WatchTextFileMenuBarController::init(surroundings));
        m_watchers.back()->setDelegate(this);
        m_watchers.back()->watchWithTextFileURL(file);
    }

    void watchTextFileMenuBarControllerDidFinish(WatchTextFileMenuBarController &controller) override
    {
        std::erase_if(m_watchers, [&](const auto &known) { return known.get() == &controller; });
        if (m_watchers.empty())
            QCoreApplication::quit();
    }

private:
    std::vector<std::shared_ptr<WatchTextFileMenuBarController>> m_watchers;
};

} // namespace

int main(int argumentCount, char **arguments)
{
    const QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    const DesktopAppearance appearance;
    WidgetDesktop desktop;
    TrayStatusBar statusBar;
    ApplicationActivity activity(false);
    const ApplicationActivitySource activitySource(activity);
    Registry registry;
    for (const QString &file : QApplication::arguments().mid(1))
        registry.add({.desktop = desktop, .applicationActivity = activity, .statusBar = &statusBar},
            QUrl::fromLocalFile(file));
    return QApplication::exec();
}
