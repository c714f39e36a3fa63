// SPDX-License-Identifier: MIT
#include "platform/sandbox/DocumentSandbox.h"

SandboxReport enterDocumentSandbox(const QByteArrayList &fonts)
{
    Sandbox sandbox;
    sandbox.endWithParent();
    sandbox.keepMemoryPrivate();
    sandbox.growNoFile();

    sandbox.mayRead(fonts);
    sandbox.mayRead({"/usr/share/icu", "/usr/share/locale", "/usr/lib/locale"});
    sandbox.mayRead({"/sys/devices/system/cpu"}); // how many threads are worth their while

    sandbox.mayNotChangeFiles();
    sandbox.mayNotStartPrograms();
    sandbox.mayNotConnect();
    sandbox.mayNotTouchOtherProcesses();
    sandbox.mayNotLiftItsLimits();
    sandbox.mayNotAskForPrivilegedThings();
    return sandbox.enter();
}
