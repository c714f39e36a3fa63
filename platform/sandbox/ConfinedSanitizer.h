// SPDX-License-Identifier: MIT
// ConfinedSanitizer prepares the sanitizer that a program may be built with for a process that can open no
// file and start no process.
// Thread: main, before there is another.
#pragma once

/// Reports go to standard error as it is at the time of the report, and nothing looks for leaks when the
/// process ends, which takes a thread that stops the others. Does nothing in a program without a sanitizer.
void prepareSanitizerForConfinement();
