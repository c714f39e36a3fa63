// SPDX-License-Identifier: MIT
// "quillbay watch" opens a window for each file, with counts that follow every save.
// Thread: main.
#pragma once

/// words: those behind "quillbay watch". Gives the exit status.
int runWatchCommand(int wordCount, char **words);
