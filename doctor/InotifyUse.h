// SPDX-License-Identifier: MIT
// InotifyUse is how much of the kernel's limits for watching files this user's programs use (inotify(7)).
// Thread: any.
#pragma once

#include <QtGlobal>

struct InotifyUse {
    // At least: programs that keep their memory private, such as Quillbay's own, do not show theirs.
    qint64 watches = 0;
    qint64 instances = 0;
    // 0 if the system does not say.
    qint64 maxWatches = 0;
    qint64 maxInstances = 0;
};

/// Reads /proc.
InotifyUse readInotifyUse();
