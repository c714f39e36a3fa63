// SPDX-License-Identifier: MIT
// Examination runs checks one after another, each on a thread of its own: a bus, a printer or a display that
// hangs costs the timeout of its check and no more.
// Thread: main. A check that hangs keeps its thread, so the process must end by _Exit().
#pragma once

#include "doctor/Checks.h"

#include <functional>

using FindingReceiver = std::function<void(const Check &check, const Finding &finding)>;

/// receive: called on this thread with every finding as soon as it is there. Returns the worst severity.
Severity examine(const std::vector<Check> &checks, const FindingReceiver &receive);
