// SPDX-License-Identifier: MIT
#include "platform/system/PrivateMemory.h"

#include <sys/prctl.h>

void keepMemoryPrivate()
{
    ::prctl(PR_SET_DUMPABLE, 0);
}
