// SPDX-License-Identifier: MIT
#include "preferences/QBYUserDefaultsController.h"

#include "preferences/PreferenceTable.h"
#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <cmath>
#include <set>
#include <thread>

using Controller = QBYUserDefaultsController;

namespace {

struct Switch {
    bool (*get)();
    void (*set)(bool);
    const char *key;
};

const std::vector<Switch> &switches()
{
    static const std::vector<Switch> all{
        {Controller::isShowCharacterCountPreferenceOn, Controller::setShowCharacterCountPreference,
            "ShowCharacterCountUserDefaultKey"},
        {Controller::isShowCharacterCountIncludingWhitespacePreferenceOn,
            Controller::setShowCharacterCountIncludingWhitespacePreference,
            "ShowCharacterCountUserDefaultKeyUsingWhitespace"},
        {Controller::isShowSentencesCountPreferenceOn, Controller::setShowSentencesCountPreference,
            "ShowSentencesCountUserDefaultKey"},
        {Controller::isShowLineCountPreferenceOn, Controller::setShowLineCountPreference,
            "ShowLineCountUserDefaultKey"},
        {Controller::isShowHardLineBreakCountPreferenceOn, Controller::setShowHardLineBreakCountPreference,
            "ShowHardLineBreaksCountUserDefaultKey"},
        {Controller::isShowParagraphCountPreferenceOn, Controller::setShowParagraphCountPreference,
            "ShowParagraphCountUserDefaultKey"},
        {Controller::isShowHardIndentParagraphCountPreferenceOn,
            Controller::setShowHardIndentParagraphCountPreference,
            "ShowHardIndentParagraphCountUserDefaultKey"},
        {Controller::shouldEnforceTrailingPeriodForSentencesCount,
            Controller::setShouldEnforceTrailingPeriodForSentencesCount,
            "EnforceSentencesEndWithPeriodUserDefaultKey"},
        {Controller::shouldSayWordCountOutloudOnSaveInWatchFileMode,
            Controller::setSayWordCountOutLoudOnSaveInWatchFileMode,
            "SayWordCountOutloudOnSaveInWatchFileMode"},
    };
    return all;
}

std::optional<DefaultsValue> stored(const char *key)
{
    return Controller::sharedUserDefaults().objectForKey(QString::fromLatin1(key));
}

void store(const DefaultsValue &value, const char *key)
{
    Controller::sharedUserDefaults().setObject(value, QString::fromLatin1(key));
}

} // namespace

class QBYUserDefaultsControllerTest : public QuillbayTest {
    RecordingLogSink m_log; // there is no bus here, and that is logged
};

TEST_F(QBYUserDefaultsControllerTest, InANewSuiteEverythingIsOffZeroOrAbsentAndReadingWritesNothing)
{
    for (const Switch &one : switches())
        EXPECT_FALSE(one.get()) << one.key;
    EXPECT_EQ(Controller::minNumberOfSentencesForParagraphCount(), 0);
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), std::nullopt);
    EXPECT_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 0);
    EXPECT_EQ(Controller::rightMarginForPaperSizeLineMeasuring(), 0);
    EXPECT_FALSE(QFile::exists(world().configuration() + QStringLiteral("/quillbay")));
}

TEST_F(QBYUserDefaultsControllerTest, EverySwitchReadsAndWritesItsOwnKeyAsABoolean)
{
    Controller::setShowCharacterCountPreference(false);
    for (const Switch &one : switches()) {
        one.set(true);
        EXPECT_TRUE(one.get()) << one.key;
        EXPECT_EQ(stored(one.key), DefaultsValue(true)) << one.key;
        for (const Switch &other : switches()) {
            const bool isSetAlong = &one == switches().data() && &other == &switches()[1];
            EXPECT_EQ(other.get(), &other == &one || isSetAlong) << one.key << " changes " << other.key;
        }
        one.set(false);
        EXPECT_FALSE(one.get()) << one.key;
        EXPECT_EQ(stored(one.key), DefaultsValue(false)) << one.key;
    }
}

TEST_F(QBYUserDefaultsControllerTest, SettingTheCharacterCountSetsTheOneWithWhiteSpaceButNotViceVersa)
{
    Controller::setShowCharacterCountPreference(true);
    EXPECT_TRUE(Controller::isShowCharacterCountPreferenceOn());
    EXPECT_TRUE(Controller::isShowCharacterCountIncludingWhitespacePreferenceOn());
    Controller::setShowCharacterCountPreference(false);
    EXPECT_FALSE(Controller::isShowCharacterCountPreferenceOn());
    EXPECT_FALSE(Controller::isShowCharacterCountIncludingWhitespacePreferenceOn());
    Controller::setShowCharacterCountIncludingWhitespacePreference(true);
    EXPECT_FALSE(Controller::isShowCharacterCountPreferenceOn());
    EXPECT_TRUE(Controller::isShowCharacterCountIncludingWhitespacePreferenceOn());
}

TEST_F(QBYUserDefaultsControllerTest, TheMinimumOfSentencesIsAnIntegerAndNeverReadsAsNegative)
{
    Controller::setMinNumberOfSentencesForParagraphCount(4);
    EXPECT_EQ(Controller::minNumberOfSentencesForParagraphCount(), 4);
    EXPECT_EQ(stored("MinNumberOfSentencesToEnforceForParagraphCountDefaultsKey"), DefaultsValue(qint64{4}));
    Controller::setMinNumberOfSentencesForParagraphCount(-3);
    EXPECT_EQ(Controller::minNumberOfSentencesForParagraphCount(), 0);
    EXPECT_EQ(stored("MinNumberOfSentencesToEnforceForParagraphCountDefaultsKey"), DefaultsValue(qint64(-3)));
}

TEST_F(QBYUserDefaultsControllerTest, ThePaperNameIsReadAsItWasWritten)
{
    Controller::setCurrentPaperNamePreference(QStringLiteral("A4"));
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("A4"));
    EXPECT_EQ(stored("PaperNameForPageToLineMeasureUserDefaultsKey"), DefaultsValue(QStringLiteral("A4")));
    Controller::setCurrentPaperNamePreference(QString());
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QString()) << "empty is not absent";
}

TEST_F(QBYUserDefaultsControllerTest, APaperNameThatIsNotTextReadsAsAbsent)
{
    store(qint64{4}, "PaperNameForPageToLineMeasureUserDefaultsKey");
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), std::nullopt);
}

TEST_F(QBYUserDefaultsControllerTest, EachMarginHasItsOwnKeyAndIsADouble)
{
    Controller::setLeftMarginForPaperSizeLineMeasuring(1.25);
    Controller::setRightMarginForPaperSizeLineMeasuring(0.75);
    EXPECT_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 1.25);
    EXPECT_EQ(Controller::rightMarginForPaperSizeLineMeasuring(), 0.75);
    EXPECT_EQ(stored("PaperLeftMarginValueUserDefaultsKey"), DefaultsValue(1.25));
    EXPECT_EQ(stored("PaperRightMarginValueUserDefaultsKey"), DefaultsValue(0.75));
}

TEST_F(QBYUserDefaultsControllerTest, AMarginStoredAsTextOrIntegerReadsAsItsNumber)
{
    store(QStringLiteral("0.5"), "PaperLeftMarginValueUserDefaultsKey");
    store(qint64{2}, "PaperRightMarginValueUserDefaultsKey");
    EXPECT_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 0.5);
    EXPECT_EQ(Controller::rightMarginForPaperSizeLineMeasuring(), 2);
}

TEST_F(QBYUserDefaultsControllerTest, AMarginThatIsNotFiniteIsRefused)
{
    Controller::setLeftMarginForPaperSizeLineMeasuring(1);
    Controller::setLeftMarginForPaperSizeLineMeasuring(std::nan(""));
    EXPECT_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 1);
}

TEST_F(QBYUserDefaultsControllerTest, TheSuiteIsOneObjectUnderTheProductsNameForAllThreads)
{
    const UserDefaults *const here = &Controller::sharedUserDefaults();
    UserDefaults *there = nullptr;
    std::thread([&there] { there = &Controller::sharedUserDefaults(); }).join();
    EXPECT_EQ(here, there);
    Controller::setShowLineCountPreference(true);
    EXPECT_TRUE(UserDefaults(QStringLiteral("K7Q2M9X4T1.com.quillbay"))
                    .boolForKey(QStringLiteral("ShowLineCountUserDefaultKey")));
}

TEST_F(QBYUserDefaultsControllerTest, NoTwoPreferencesShareAKey)
{
    std::set<QString> keys;
    const int count = static_cast<int>(Preference::HasAppBeenOpened) + 1;
    for (int i = 0; i < count; ++i)
        keys.insert(keyOf(static_cast<Preference>(i)));
    EXPECT_EQ(keys.size(), static_cast<size_t>(count));
    EXPECT_EQ(keyOf(Preference::HasAppBeenOpened), QStringLiteral("HasAppBeenOpenedKey"));
}
