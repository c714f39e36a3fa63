// SPDX-License-Identifier: MIT
// quillbay-desk: the main window, in which the user sets the rules of the counts.
#include "desk/DeskWindow.h"
#include "desk/WatchFiles.h"
#include "manual/HelpText.h"
#include "manual/ManualPages.h"
#include "platform/defaults/FaultText.h"
#include "platform/display/Displays.h"
#include "platform/session_bus/ActivationToken.h"
#include "platform/session_bus/UniqueApplication.h"
#include "platform/system/DispatchQueue.h"
#include "platform/system/FileURL.h"
#include "platform/system/Processes.h"
#include "platform/system/StandardOutput.h"
#include "platform/views/widgets/DesktopAppearance.h"
#include "platform/views/widgets/WindowActivation.h"
#include "preferences/QBYUserDefaultsController.h"
#include "speech/ApplicationExtension.h"
#include "translations/Translations.h"

#include <QApplication>
#include <QIcon>

#include <algorithm>
#include <cstdio>
#include <string_view>

#include <sys/resource.h>

namespace {

// Exit statuses, besides 0.
constexpr int notShown = 1; // no display
constexpr int wrongUsage = 2;

int reportWrongUsage(const char *message)
{
    std::fprintf(stderr, "quillbay-desk: %s\nTry 'quillbay-desk --help' for more.\n", message);
    return wrongUsage;
}

int reportMissingDisplay()
{
    std::fputs("quillbay-desk: no display for its window; set DISPLAY or WAYLAND_DISPLAY; "
               "on Wayland without Xwayland, install qt6-wayland\n",
        stderr);
    return notShown;
}

void describeApplication()
{
    QApplication::setApplicationName(QStringLiteral("Quillbay")); // screen readers read it
    QApplication::setApplicationVersion(QStringLiteral(QUILLBAY_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("com.quillbay.Quillbay"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("com.quillbay.Quillbay")));
}

/// The arguments after --watch are files; the user chooses some if there are none. Returns the exit status,
/// unless the process has become the command.
int watchFiles(int argumentCount, char **arguments)
{
    QByteArrayList names(arguments + 2, arguments + argumentCount);
    if (names.isEmpty()) {
        if (!Displays::isAny())
            return reportMissingDisplay();
        const QApplication application(argumentCount, arguments);
        installTranslations();
        installQtTranslations();
        describeApplication();
        const DesktopAppearance appearance;
        names = chooseFilesToWatch();
        if (names.isEmpty())
            return 0;
    }
    becomeWatchCommand(names);
    return notShown;
}

/// Each document of the list that is followed needs three descriptors.
void raiseDescriptorLimit()
{
    constexpr rlim_t wanted = 16'384;
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= wanted)
        return;
    limit.rlim_cur = std::min(wanted, limit.rlim_max);
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

int showWindow(UniqueApplication &unique, const UniqueApplication::Request &request, bool hasBus)
{
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    DeskWindow window(QBYExtension::speechLaunchPath());
    if (const auto unstored = QBYUserDefaultsController::unstoredDefaults()) {
        window.setNotice(
            DeskWindow::tr("%1: cannot be written (%2), so the default rules apply and changes are "
                           "not stored. Make the folder writable to set your own.")
                .arg(unstored->file, faultText(unstored->reason)));
    } else if (!hasBus) {
        window.setNotice(DeskWindow::tr("There is no session bus: open windows of other programs of "
                                        "Quillbay follow a change only at their next count."));
    }
    const auto show = [&window](const UniqueApplication::Request &wanted) {
        WindowActivation::setToken(wanted.activationToken);
        if (window.isMinimized())
            window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
        WindowActivation::showAndActivate(window);
        window.openFiles(wanted.files);
    };
    QObject::connect(&unique, &UniqueApplication::requested, &window, show);
    show(request);
    return QApplication::exec();
}

int run(int argumentCount, char **arguments)
{
    const std::string_view word = argumentCount > 1 ? arguments[1] : "";
    if (word == "--help" || word == "-h")
        return printHelp(deskPage());
    if (word == "--version" || word == "-V")
        return printText("quillbay-desk " QUILLBAY_VERSION "\n");
    Displays::forgetUnreachable();
    if (word == "--watch")
        return watchFiles(argumentCount, arguments);
    if (!Displays::isAny())
        return reportMissingDisplay();
    UniqueApplication::Request request{.activationToken = takeActivationToken()};
    const QApplication application(argumentCount, arguments);
    installTranslations();
    installQtTranslations();
    // Qt has removed its own options. A file name may be any bytes.
    QByteArrayList words(arguments + 1, arguments + argumentCount);
    if (!words.isEmpty() && words.constFirst() == "--")
        words.removeFirst();
    else if (!words.isEmpty() && words.constFirst().startsWith('-'))
        return reportWrongUsage("unknown option");
    if (words.size() > 1)
        return reportWrongUsage("one file at a time");
    for (const QByteArray &file : words)
        request.files.append(fileURLOfName(file));
    describeApplication();
    UniqueApplication unique(QStringLiteral("com.quillbay.Quillbay"));
    const UniqueApplication::Role role = unique.start(request);
    if (role == UniqueApplication::Role::Later)
        return 0;
    const DesktopAppearance appearance;
    raiseDescriptorLimit();
    return showWindow(unique, request, role == UniqueApplication::Role::First);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    keepMemoryPrivate();
    exitDespiteQueues(run(argumentCount, arguments));
}
