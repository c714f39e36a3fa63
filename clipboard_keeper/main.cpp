// SPDX-License-Identifier: MIT
// quillbay-clipboard-keeper: takes over what the user has copied from a window of the service provider, which
// exits with its last window, and hands it to the desktop's clipboard manager. Without a manager it keeps the
// content until another program copies something or the display closes. At most one keeper runs at a time.
#include "platform/pasteboard/ClipboardOwner.h"
#include "platform/system/Processes.h"

#include <cstdio>

namespace {

// Exit statuses, besides 0 once the content is saved or replaced.
constexpr int nothingTaken = 1;
constexpr int wrongUsage = 2;

} // namespace

int main(int argumentCount, char **)
{
    keepMemoryPrivate();
    if (argumentCount > 1) {
        std::fputs(
            "quillbay-clipboard-keeper: takes no arguments; is started by Quillbay's windows\n", stderr);
        return wrongUsage;
    }
    ClipboardOwner owner;
    if (!owner.takeOver())
        return nothingTaken;
    owner.serve();
    return 0;
}
