// SPDX-License-Identifier: MIT
// CoordinationError says why a coordinated access was not granted; which file it was, its receiver knows.
// Thread: any; a value.
#pragma once

#include <QString>

struct CoordinationError {
    enum class Cause {
        LockedByWriter, ///< another program holds a writer's lock on the file
        NotRelinquished, ///< a presenter of the file in this process does not give it up
    };

    Cause cause;

    bool operator==(const CoordinationError &) const = default;
};

/// The cause in English, on one line and without the name of the file.
QString causeText(const CoordinationError &error);
