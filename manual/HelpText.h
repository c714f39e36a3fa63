// SPDX-License-Identifier: MIT
// The text of --help: a page of the manual, in the user's language, for a terminal of 80 columns.
// Thread: any.
#pragma once

#include "manual/ManualPage.h"

#include <QByteArray>

QByteArray helpText(const ManualPage &page);

/// Prints it to standard output. Returns the exit status: 1 if standard output cannot be written.
int printHelp(const ManualPage &page);

/// The words that an option is listed with: "-h, --help" or "--files-from LIST".
QString optionLabel(const ManualOption &option);
