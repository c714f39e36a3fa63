// SPDX-License-Identifier: MIT
// The table of the preferences: their keys, whether changes are announced, and their first-launch values.
// QBYUserDefaultsController reads and writes them.
// Thread: any.
#pragma once

#include "platform/defaults/DefaultsValue.h"

#include <QString>

#include <optional>
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
    TopMargin, ///< inches
    BottomMargin, ///< inches
    ShowPages,
    ShowStandardPages,
    ShowReadingTime,
    ShowSpeakingTime,
    ShowGraphemes,
    StandardPageSize, ///< as of StandardPage
    ReadingSpeed, ///< words per minute
    SpeakingSpeed, ///< words per minute
    HasAppBeenOpened, ///< whether the first-launch defaults have been written
};

/// The key in the suite.
QString keyOf(Preference preference);

/// Whether the setter posts the change notification. Those of the sentence rule and the margins deliberately
/// do not: other processes read these preferences at their next count.
bool isAnnounced(Preference preference);

/// The value of a preference that the first launch does not write and that depends on nothing else; it holds
/// until the user sets another. Absent for all others.
std::optional<DefaultsValue> unwrittenDefaultOf(Preference preference);

/// The first-launch values that do not depend on the paper, in the order in which they are written.
std::vector<DefaultsEntry> fixedFirstLaunchDefaults();
