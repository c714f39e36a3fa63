// SPDX-License-Identifier: MIT
// The policy of the workers: what a process that touches documents may do.
// Thread: main, before there is another.
#pragma once

#include "counting_service/sandbox/Sandbox.h"

/// Puts the policy in force, for good. What it costs in memory and processor time is limited by the broker,
/// from outside and anew for every document.
SandboxReport enterWorkerSandbox();
