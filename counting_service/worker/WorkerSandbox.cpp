// SPDX-License-Identifier: MIT
#include "counting_service/worker/WorkerSandbox.h"

#include "counting_service/fonts/FontSources.h"

SandboxReport enterWorkerSandbox()
{
    Sandbox sandbox;
    sandbox.endWithParent();
    sandbox.keepMemoryPrivate();
    sandbox.growNoFile();

    sandbox.mayRead(FontSources::current().readable);
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
