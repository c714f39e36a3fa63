// SPDX-License-Identifier: MIT
#include "preferences/QBYUserDefaultsController.h"

#include "platform/session_bus/DistributedNotificationCenter.h"
#include "preferences/FirstLaunch.h"
#include "preferences/PreferenceTable.h"

#include <QFile>

#include <algorithm>

namespace {

UserDefaults &suite()
{
    return QBYUserDefaultsController::sharedUserDefaults();
}

bool isOn(Preference preference)
{
    return suite().boolForKey(keyOf(preference));
}

double numberOf(Preference preference)
{
    const auto value = suite().objectForKey(keyOf(preference));
    return value ? doubleValue(*value) : 0;
}

// A failed write is announced too, so that observers show the old value again.
void set(Preference preference, const DefaultsValue &value)
{
    suite().setObject(value, keyOf(preference));
    if (isAnnounced(preference))
        QBYUserDefaultsController::postPreferencesChangedNotification();
}

} // namespace

UserDefaults &QBYUserDefaultsController::sharedUserDefaults()
{
    // Never destroyed: other threads may still read preferences while the process exits.
    static auto &defaults = *new UserDefaults(QStringLiteral("K7Q2M9X4T1.com.quillbay"));
    return defaults;
}

void QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch()
{
    writeFirstLaunchDefaults(sharedUserDefaults(), systemDefaultPaper);
}

std::optional<QBYUserDefaultsController::UnstoredDefaults> QBYUserDefaultsController::unstoredDefaults()
{
    const UserDefaults &defaults = sharedUserDefaults();
    if (!defaults.hasFallbackValues())
        return std::nullopt;
    return UnstoredDefaults{QFile::decodeName(defaults.path()), defaults.writeFault().value_or(QString())};
}

void QBYUserDefaultsController::postPreferencesChangedNotification()
{
    DistributedNotificationCenter::post(QBYPreferencesChangedNotification);
}

bool QBYUserDefaultsController::isShowCharacterCountPreferenceOn()
{
    return isOn(Preference::ShowCharacterCount);
}

void QBYUserDefaultsController::setShowCharacterCountPreference(bool isOn)
{
    suite().setObjects({{keyOf(Preference::ShowCharacterCount), isOn},
        {keyOf(Preference::ShowCharacterCountIncludingWhitespace), isOn}});
    postPreferencesChangedNotification();
}

bool QBYUserDefaultsController::isShowCharacterCountIncludingWhitespacePreferenceOn()
{
    return isOn(Preference::ShowCharacterCountIncludingWhitespace);
}

void QBYUserDefaultsController::setShowCharacterCountIncludingWhitespacePreference(bool isOn)
{
    set(Preference::ShowCharacterCountIncludingWhitespace, isOn);
}

bool QBYUserDefaultsController::isShowSentencesCountPreferenceOn()
{
    return isOn(Preference::ShowSentencesCount);
}

void QBYUserDefaultsController::setShowSentencesCountPreference(bool isOn)
{
    set(Preference::ShowSentencesCount, isOn);
}

bool QBYUserDefaultsController::isShowLineCountPreferenceOn()
{
    return isOn(Preference::ShowLineCount);
}

void QBYUserDefaultsController::setShowLineCountPreference(bool isOn)
{
    set(Preference::ShowLineCount, isOn);
}

bool QBYUserDefaultsController::isShowHardLineBreakCountPreferenceOn()
{
    return isOn(Preference::ShowHardLineBreaksCount);
}

void QBYUserDefaultsController::setShowHardLineBreakCountPreference(bool isOn)
{
    set(Preference::ShowHardLineBreaksCount, isOn);
}

bool QBYUserDefaultsController::isShowParagraphCountPreferenceOn()
{
    return isOn(Preference::ShowParagraphCount);
}

void QBYUserDefaultsController::setShowParagraphCountPreference(bool isOn)
{
    set(Preference::ShowParagraphCount, isOn);
}

bool QBYUserDefaultsController::isShowHardIndentParagraphCountPreferenceOn()
{
    return isOn(Preference::ShowHardIndentParagraphCount);
}

void QBYUserDefaultsController::setShowHardIndentParagraphCountPreference(bool isOn)
{
    set(Preference::ShowHardIndentParagraphCount, isOn);
}

qint64 QBYUserDefaultsController::minNumberOfSentencesForParagraphCount()
{
    return std::max<qint64>(
        0, suite().integerForKey(keyOf(Preference::MinNumberOfSentencesForParagraphCount)));
}

void QBYUserDefaultsController::setMinNumberOfSentencesForParagraphCount(qint64 number)
{
    set(Preference::MinNumberOfSentencesForParagraphCount, number);
}

bool QBYUserDefaultsController::shouldEnforceTrailingPeriodForSentencesCount()
{
    return isOn(Preference::EnforceTrailingPeriodForSentencesCount);
}

void QBYUserDefaultsController::setShouldEnforceTrailingPeriodForSentencesCount(bool shouldEnforce)
{
    set(Preference::EnforceTrailingPeriodForSentencesCount, shouldEnforce);
}

bool QBYUserDefaultsController::shouldSayWordCountOutloudOnSaveInWatchFileMode()
{
    return isOn(Preference::SayWordCountOutLoudOnSaveInWatchFileMode);
}

void QBYUserDefaultsController::setSayWordCountOutLoudOnSaveInWatchFileMode(bool shouldSay)
{
    set(Preference::SayWordCountOutLoudOnSaveInWatchFileMode, shouldSay);
}

std::optional<QString> QBYUserDefaultsController::paperNameForLineMeasuring()
{
    const auto name = readPaperNameForLineMeasuring();
    return name ? name.value() : std::nullopt;
}

Result<std::optional<QString>, SuiteFault> QBYUserDefaultsController::readPaperNameForLineMeasuring()
{
    const auto value = suite().readObjectForKey(keyOf(Preference::PaperName));
    if (!value)
        return value.error();
    const QString *name = value.value() ? std::get_if<QString>(&*value.value()) : nullptr;
    return name ? std::optional(*name) : std::nullopt;
}

void QBYUserDefaultsController::setCurrentPaperNamePreference(const QString &paperName)
{
    set(Preference::PaperName, paperName);
}

double QBYUserDefaultsController::leftMarginForPaperSizeLineMeasuring()
{
    return numberOf(Preference::LeftMargin);
}

void QBYUserDefaultsController::setLeftMarginForPaperSizeLineMeasuring(double inches)
{
    set(Preference::LeftMargin, inches);
}

double QBYUserDefaultsController::rightMarginForPaperSizeLineMeasuring()
{
    return numberOf(Preference::RightMargin);
}

void QBYUserDefaultsController::setRightMarginForPaperSizeLineMeasuring(double inches)
{
    set(Preference::RightMargin, inches);
}
