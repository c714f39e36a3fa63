// SPDX-License-Identifier: MIT
// quillbay-clipboard-keeper: takes over what the user has copied from a window of the service provider, which
// exits with its last window, and gives it to the desktop's clipboard manager. Where there is none it keeps
// it until any program copies something else, or the display is gone; so there is never more than one keeper.
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
