// SPDX-License-Identifier: MIT
// The commands of quillbay, as "quillbay count"; main() chooses one by its name.
// Thread: main.
#pragma once

// words: those after the name of the command. All return the exit status.

/// Prints the counts of files or of standard input.
int runCountCommand(int wordCount, char **words);

/// Prints what works on this desktop, what does not, and what to do about it.
int runDoctorCommand(int wordCount, char **words);

/// Prints what the counts of files consist of, and what does not count and why.
int runExplainCommand(int wordCount, char **words);

/// Prints the text of files or of standard input, as it is counted.
int runExtractCommand(int wordCount, char **words);

/// Prints and sets the preferences.
int runPreferencesCommand(int wordCount, char **words);

/// Opens a window with the counts of the selected text or of the clipboard.
int runSelectionCommand(int wordCount, char **words);

/// Opens a window with the counts of one document.
int runTextCommand(int wordCount, char **words);

/// Opens a window for each file, whose counts follow every save.
int runWatchCommand(int wordCount, char **words);
