// SPDX-License-Identifier: MIT
// FaultText puts a reason why a suite cannot be read or written into the user's language. Faults have it in
// English, for log lines.
// Thread: any.
#pragma once

#include <QString>

/// reason: of a SuiteFault or of UserDefaults::writeFault(); empty if it is not known.
QString faultText(const QString &reason);
