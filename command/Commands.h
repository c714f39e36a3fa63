// SPDX-License-Identifier: MIT
// The commands of quillbay, as "quillbay count"; main() chooses one by its name.
// Thread: main.
#pragma once

#include "command/CommandWords.h"

// All return the exit status.

/// Prints the counts of files or of standard input.
int runCountCommand(const CommandWords &words);

/// Prints what works on this desktop, what does not, and what to do about it.
int runDoctorCommand(const CommandWords &words);

/// Prints and changes the list of documents that the user keeps an eye on.
int runDocumentsCommand(const CommandWords &words);

/// Prints what the counts of files consist of, and what does not count and why.
int runExplainCommand(const CommandWords &words);

/// Prints the text of files or of standard input, as it is counted.
int runExtractCommand(const CommandWords &words);

/// Sets, prints and removes the goal and the limit of a document or a folder.
int runGoalCommand(const CommandWords &words);

/// Prints what each day brought to a document.
int runHistoryCommand(const CommandWords &words);

/// Prints and sets the preferences.
int runPreferencesCommand(const CommandWords &words);

/// Opens a window with the counts of the selected text or of the clipboard.
int runSelectionCommand(const CommandWords &words);

/// Prints the documents of the list, what today brought, and how far their goals are.
int runStatusCommand(const CommandWords &words);

/// Opens a window with the counts of each document or of standard input.
int runTextCommand(const CommandWords &words);

/// Opens a window for each file, whose counts follow every save.
int runWatchCommand(const CommandWords &words);
