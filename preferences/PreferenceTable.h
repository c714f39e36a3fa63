// SPDX-License-Identifier: MIT
// The one table of the preferences: their keys, which of them a change is announced of, and what they are at
// the first launch. Reading and writing them is left to QBYUserDefaultsController.
// Thread: any.
#pragma once

#include "platform/defaults/DefaultsValue.h"

#include <QString>

#include <vector>

enum class Preference {
    ShowCharacterCount,
    ShowCharacterCountIncludingWhitespace,
    ShowSentencesCount,
    ShowLineCount,
    ShowHardLineBreaksCount,
    ShowParagraphCount,
    ShowHardIndentParagraphCount,
    MinNumberOfSentencesForParagraphCount,
    EnforceTrailingPeriodForSentencesCount,
    SayWordCountOutLoudOnSaveInWatchFileMode,
    PaperName,
    LeftMargin, ///< inches
    RightMargin, ///< inches
    HasAppBeenOpened, ///< whether the first-launch defaults have been written
};

/// The key in the suite.
QString keyOf(Preference preference);

/// Whether its setter posts the change notification. The rule on the end of a sentence and the margins
/// deliberately do not: other processes see those at their next count.
bool isAnnounced(Preference preference);

/// The first-launch values that do not depend on a printer, in the order in which they are written.
std::vector<DefaultsEntry> fixedFirstLaunchDefaults();
