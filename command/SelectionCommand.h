// SPDX-License-Identifier: MIT
// "quillbay selection" opens a window with the counts of the text that is selected in whatever application.
// Thread: main.
#pragma once

/// words: those behind "quillbay selection". Gives the exit status.
int runSelectionCommand(int wordCount, char **words);
