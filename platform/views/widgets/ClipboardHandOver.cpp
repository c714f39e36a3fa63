// SPDX-License-Identifier: MIT
#include "platform/views/widgets/ClipboardHandOver.h"

#include "platform/logging/LogChannel.h"
#include "platform/system/Processes.h"
#include "platform/views/widgets/X11.h"
#include "platform/wayland/SelectionInterfaces.h"
#include "platform/wayland/WaylandConnection.h"

#include <QClipboard>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

namespace {

/// Elsewhere only the program with the focus can own the clipboard, and the compositor keeps the content.
bool canHandOver()
{
    if (X11::isAvailable())
        return true;
    const WaylandConnection wayland;
    return wayland.isConnected() && SelectionInterfaces::offeredDataControl(wayland);
}

} // namespace

void ClipboardHandOver::finish(const QString &keeper)
{
    const QClipboard &clipboard = *QGuiApplication::clipboard();
    if (!clipboard.ownsClipboard() || !canHandOver())
        return;
    if (const std::optional<LaunchError> error = launchDetached(keeper, {})) {
        LogChannel::standard().error(
            u"What was copied is lost: {}; install Quillbay again", {publicly(messageText(*error))});
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(timeout, &loop, [&loop] { loop.exit(1); });
    // The signal means another owner. ownsClipboard() stays true if that one has saved the content and
    // exited.
    QObject::connect(&clipboard, &QClipboard::dataChanged, &loop, &QEventLoop::quit);
    if (loop.exec() != 0)
        LogChannel::standard().error(u"What was copied is lost: {} does not take it", {publicly(keeper)});
}
