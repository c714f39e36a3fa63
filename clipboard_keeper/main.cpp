// SPDX-License-Identifier: MIT
// quillbay-clipboard-keeper: takes over what the user has copied from a window of the service provider, which
// exits with its last window, and hands it to the desktop's clipboard manager. Without a manager it keeps the
// content until another program copies something or the display closes. At most one keeper runs at a time.
// Uses the Wayland compositor if it lets programs without a window own the clipboard: it serves X clients
// too.
#include "platform/pasteboard/ClipboardOwner.h"
#include "platform/pasteboard/WaylandClipboardOwner.h"
#include "platform/system/Processes.h"

#include <csignal>
#include <cstdio>

namespace {

// Exit statuses, besides 0 once the content is saved or replaced.
constexpr int nothingTaken = 1;
constexpr int wrongUsage = 2;

/// False if there was nothing to take over.
template <typename Owner>
bool keepClipboard()
{
    Owner owner;
    if (!owner.takeOver())
        return false;
    owner.serve();
    return true;
}

} // namespace

int main(int argumentCount, char **)
{
    keepMemoryPrivate();
    if (argumentCount > 1) {
        std::fputs(
            "quillbay-clipboard-keeper: takes no arguments; is started by Quillbay's windows\n", stderr);
        return wrongUsage;
    }
    std::signal(SIGPIPE, SIG_IGN); // who pastes may stop reading
    return keepClipboard<WaylandClipboardOwner>() || keepClipboard<ClipboardOwner>() ? 0 : nothingTaken;
}
