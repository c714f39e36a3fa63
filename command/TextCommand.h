// SPDX-License-Identifier: MIT
// "quillbay text" opens a window with the counts of a document or of what comes through a pipe.
// Thread: main.
#pragma once

/// words: those behind "quillbay text". Gives the exit status.
int runTextCommand(int wordCount, char **words);
