// SPDX-License-Identifier: MIT
// QBYUserDefaultsController reads and writes the user's preferences for the whole product; it caches none.
// Thread: any.
#pragma once

#include "platform/defaults/UserDefaults.h"

#include <QLatin1StringView>
#include <QString>

#include <optional>

/// Posted on the DistributedNotificationCenter when a preference has changed. It carries no values: observers
/// read the preferences again.
inline constexpr QLatin1StringView QBYPreferencesChangedNotification("QBYPreferencesChangedNotification");

/// Every getter reads from disk, and so gets what any process wrote last. There are no fallback values: a
/// missing preference reads as false, 0, 0.0 or absent. Every setter returns when the value is on disk; a
/// write error is only logged. All setters but three then post QBYPreferencesChangedNotification once.
class QBYUserDefaultsController {
public:
    QBYUserDefaultsController() = delete;

    /// The suite "K7Q2M9X4T1.com.quillbay": one object, opened at the first access and never destroyed.
    static UserDefaults &sharedUserDefaults();

    /// The first-launch step: writes the default preferences of a new user, once. Never posts. Main thread,
    /// as it asks the print settings for the default paper.
    static void configureUserDefaultsOnApplicationLaunch();

    struct UnstoredDefaults {
        QString file; ///< that could not be written
        QString reason;
    };
    /// Present if the first-launch step could not write the default preferences: this process then has them
    /// in memory.
    static std::optional<UnstoredDefaults> unstoredDefaults();

    static void postPreferencesChangedNotification();

    // Which statistics are shown. Setting the character count also sets the one including white space, which
    // can then be set alone.
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

    /// The minimum number of sentences in a paragraph that counts; never negative, whatever is stored.
    static qint64 minNumberOfSentencesForParagraphCount();
    static void setMinNumberOfSentencesForParagraphCount(qint64 number);

    /// Whether a sentence must end with terminal punctuation to be counted. The setter deliberately posts
    /// nothing.
    static bool shouldEnforceTrailingPeriodForSentencesCount();
    static void setShouldEnforceTrailingPeriodForSentencesCount(bool shouldEnforce);

    static bool shouldSayWordCountOutloudOnSaveInWatchFileMode();
    static void setSayWordCountOutLoudOnSaveInWatchFileMode(bool shouldSay);

    /// The printing system's name of the paper on which lines are counted, such as "Letter".
    static std::optional<QString> paperNameForLineMeasuring();
    /// The same, with an error if the suite cannot be read.
    static Result<std::optional<QString>, SuiteFault> readPaperNameForLineMeasuring();
    static void setCurrentPaperNamePreference(const QString &paperName);

    // Inches; always finite, but not checked against any paper. The setters deliberately post nothing.
    static double leftMarginForPaperSizeLineMeasuring();
    static void setLeftMarginForPaperSizeLineMeasuring(double inches);
    static double rightMarginForPaperSizeLineMeasuring();
    static void setRightMarginForPaperSizeLineMeasuring(double inches);
};
