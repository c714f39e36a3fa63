// SPDX-License-Identifier: MIT
// The first-launch step of the commands that count or show counts.
// Thread: main.
#pragma once

/// Writes the default preferences of a new user, once. If they cannot be stored, reports that on standard
/// error: this process then counts by them all the same.
void runFirstLaunchStep();
