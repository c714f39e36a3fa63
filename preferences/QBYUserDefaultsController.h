// SPDX-License-Identifier: MIT
// QBYUserDefaultsController is how the whole product reads and writes the user's preferences; it keeps none
// itself.
// Thread: any.
#pragma once

#include "platform/defaults/UserDefaults.h"

#include <QLatin1StringView>
#include <QString>

#include <optional>

/// Posted on the DistributedNotificationCenter when a preference has changed; carries nothing, so observers
/// read the preferences again.
inline constexpr QLatin1StringView QBYPreferencesChangedNotification("QBYPreferencesChangedNotification");

/// Every getter reads the disk, so it sees what any process of the product wrote last. There are no fallback
/// values: what was never written reads as false, 0, 0.0 or absent. Every setter returns when the value is on
/// the disk; a value that cannot be written is reported in the log alone. All setters but three then post
/// QBYPreferencesChangedNotification, once.
class QBYUserDefaultsController {
public:
    QBYUserDefaultsController() = delete;

    /// The suite "K7Q2M9X4T1.com.quillbay": one object for the life of the process, opened at the first
    /// access.
    static UserDefaults &sharedUserDefaults();

    /// The first-launch step: gives a user who has no preferences yet the product's. Does nothing at all
    /// after that, and never posts.
    /// Thread: main, as it asks the print settings for the default paper.
    static void configureUserDefaultsOnApplicationLaunch();

    static void postPreferencesChangedNotification();

    // Which statistics are shown. Switching the character count on or off takes the one including white space
    // along; that one can then be set alone.
    static bool isShowCharacterCountPreferenceOn();
    static void setShowCharacterCountPreference(bool isOn);
    static bool isShowCharacterCountIncludingWhitespacePreferenceOn();
    static void setShowCharacterCountIncludingWhitespacePreference(bool isOn);
    static bool isShowSentencesCountPreferenceOn();
    static void setShowSentencesCountPreference(bool isOn);
    static bool isShowLineCountPreferenceOn();
    static void setShowLineCountPreference(bool isOn);
    static bool isShowHardLineBreakCountPreferenceOn();
    static void setShowHardLineBreakCountPreference(bool isOn);
    static bool isShowParagraphCountPreferenceOn();
    static void setShowParagraphCountPreference(bool isOn);
    static bool isShowHardIndentParagraphCountPreferenceOn();
    static void setShowHardIndentParagraphCountPreference(bool isOn);

    /// How many sentences make a paragraph; never negative, whatever is stored.
    static qint64 minNumberOfSentencesForParagraphCount();
    static void setMinNumberOfSentencesForParagraphCount(qint64 number);

    /// Whether a sentence must end with terminal punctuation to be counted. The setter posts nothing,
    /// deliberately.
    static bool shouldEnforceTrailingPeriodForSentencesCount();
    static void setShouldEnforceTrailingPeriodForSentencesCount(bool shouldEnforce);

    static bool shouldSayWordCountOutloudOnSaveInWatchFileMode();
    static void setSayWordCountOutLoudOnSaveInWatchFileMode(bool shouldSay);

    /// The printing system's name of the paper on which lines are counted, such as "Letter".
    static std::optional<QString> paperNameForLineMeasuring();
    /// The same, with a fault where nobody can tell whether there is such a name.
    static Result<std::optional<QString>, SuiteFault> readPaperNameForLineMeasuring();
    static void setCurrentPaperNamePreference(const QString &paperName);

    // In inches; always finite, but not checked against any paper. The setters post nothing, deliberately.
    static double leftMarginForPaperSizeLineMeasuring();
    static void setLeftMarginForPaperSizeLineMeasuring(double inches);
    static double rightMarginForPaperSizeLineMeasuring();
    static void setRightMarginForPaperSizeLineMeasuring(double inches);
};
