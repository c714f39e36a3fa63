// SPDX-License-Identifier: MIT
// The service provider: the program with the statistics windows, started by the session bus.
#include "documents/loading/SandboxedReader.h"
#include "front_end/ProviderApplication.h"
#include "platform/display/Displays.h"
#include "platform/logging/LogChannel.h"
#include "platform/system/DispatchQueue.h"
#include "platform/system/Processes.h"
#include "platform/views/widgets/ApplicationActivitySource.h"
#include "platform/views/widgets/ClipboardHandOver.h"
#include "platform/views/widgets/DesktopAppearance.h"
#include "platform/views/widgets/WidgetDesktop.h"
#include "translations/Translations.h"
#include "writing_progress/ProgressRecorder.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>
#include <cstdlib>

#include <malloc.h>

namespace {

// Exit statuses, besides 0 when nothing is open any more.
constexpr int notServing = 1; // no display, or the services cannot be offered
constexpr int wrongUsage = 2;
constexpr int lostDisplay = 3;

/// Bytes. Larger blocks, which hold texts, go back to the system when they are freed. Left to itself, the C
/// library raises this with each of them, and the heap of every thread keeps what its largest text took.
constexpr int maxKeptBlock = 1 << 20;
/// Bytes of free memory at the end of a heap, so that the texts of small files do not come and go page by
/// page.
constexpr int maxKeptMemory = 4 << 20;

void limitKeptMemory()
{
    ::mallopt(M_MMAP_THRESHOLD, maxKeptBlock);
    ::mallopt(M_TRIM_THRESHOLD, maxKeptMemory);
}

bool isRunning = false;

/// Qt calls exit() inside the event loop when the X server dies. Uses _Exit(): destructors of static objects
/// would run while threads still use them.
void exitWithoutDisplay()
{
    if (isRunning)
        std::_Exit(lostDisplay); // Qt has printed the reason
}

/// Only X11 (also as Xwayland) lets windows choose their place and stay above others on every desktop. The
/// user's own QT_QPA_PLATFORM takes precedence.
void choosePlatform()
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return;
    if (Displays::keepWindowsAbove()) {
        qputenv("QT_QPA_PLATFORM", "xcb");
        return;
    }
    qputenv("QT_QPA_PLATFORM", "wayland");
    LogChannel::standard().error(u"There is no X display, so other windows may cover those of Quillbay; "
                                 "install the package xwayland");
}

int serve(int argumentCount, char **arguments)
{
    if (argumentCount > 1) {
        std::fputs(
            "quillbay-service-provider: takes no arguments; run quillbay instead, for which the session "
            "bus starts this program\n",
            stderr);
        return wrongUsage;
    }
    Displays::forgetUnreachable();
    if (!Displays::isAny()) {
        std::fputs("quillbay-service-provider: no display for its windows; set DISPLAY or WAYLAND_DISPLAY; "
                   "on Wayland without Xwayland, install qt6-wayland\n",
            stderr);
        return notServing;
    }
    choosePlatform();
    SandboxedReader::shared().prepare(); // the first selection is on its way
    const QApplication application(argumentCount, arguments);
    installTranslations();
    installQtTranslations();
    QApplication::setApplicationName(QStringLiteral("Quillbay")); // the window class, and for screen readers
    QApplication::setApplicationDisplayName(QStringLiteral("Quillbay"));
    QApplication::setDesktopFileName(QStringLiteral("com.quillbay.Quillbay"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("com.quillbay.Quillbay")));
    QApplication::setQuitOnLastWindowClosed(false); // ProviderApplication does that
    const DesktopAppearance appearance;
    WidgetDesktop desktop;
    ApplicationActivity activity(false);
    const ApplicationActivitySource activitySource(activity);
    ProgressRecorder progressRecorder;
    ProviderApplication provider(
        {.desktop = desktop, .applicationActivity = activity, .progressRecorder = &progressRecorder});
    if (!provider.start())
        return notServing;
    std::atexit(exitWithoutDisplay);
    isRunning = true;
    const int status = QApplication::exec();
    ClipboardHandOver::finish(
        QCoreApplication::applicationDirPath() + QStringLiteral("/quillbay-clipboard-keeper"));
    isRunning = false;
    return status;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    keepMemoryPrivate();
    limitKeptMemory();
    exitDespiteQueues(serve(argumentCount, arguments));
}
