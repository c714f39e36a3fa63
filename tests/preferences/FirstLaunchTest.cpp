// SPDX-License-Identifier: MIT
#include "preferences/FirstLaunch.h"

#include "platform/printing/BuiltInPapers.h"
#include "preferences/PreferenceTable.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/preferences/UnreachableSuite.h"

#include <QDir>

#include <memory>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Controller = QBYUserDefaultsController;

class FirstLaunchTest : public QuillbayTest {
protected:
    std::optional<DefaultsValue> stored(Preference preference)
    {
        return m_defaults.objectForKey(keyOf(preference));
    }

    RecordingLogSink m_log;
    UserDefaults m_defaults{QStringLiteral("K7Q2M9X4T1.com.quillbay")};
};

TEST_F(FirstLaunchTest, AfterItEveryStatisticIsShownTheSentenceRuleIsOnAndSpeakingIsOff)
{
    Controller::configureUserDefaultsOnApplicationLaunch();
    EXPECT_TRUE(Controller::isShowCharacterCountPreferenceOn());
    EXPECT_TRUE(Controller::isShowCharacterCountIncludingWhitespacePreferenceOn());
    EXPECT_TRUE(Controller::isShowSentencesCountPreferenceOn());
    EXPECT_TRUE(Controller::isShowLineCountPreferenceOn());
    EXPECT_TRUE(Controller::isShowHardLineBreakCountPreferenceOn());
    EXPECT_TRUE(Controller::isShowParagraphCountPreferenceOn());
    EXPECT_TRUE(Controller::isShowHardIndentParagraphCountPreferenceOn());
    EXPECT_TRUE(Controller::shouldEnforceTrailingPeriodForSentencesCount());
    EXPECT_EQ(Controller::minNumberOfSentencesForParagraphCount(), 0);
    EXPECT_FALSE(Controller::shouldSayWordCountOutloudOnSaveInWatchFileMode());
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(FirstLaunchTest, EveryKeyIsWrittenWithItsOwnType)
{
    Controller::configureUserDefaultsOnApplicationLaunch();
    EXPECT_EQ(stored(Preference::ShowLineCount), DefaultsValue(true));
    EXPECT_EQ(stored(Preference::MinNumberOfSentencesForParagraphCount), DefaultsValue(qint64(0)));
    EXPECT_EQ(stored(Preference::SayWordCountOutLoudOnSaveInWatchFileMode), DefaultsValue(false));
    EXPECT_EQ(stored(Preference::HasAppBeenOpened), DefaultsValue(true));
}

TEST_F(FirstLaunchTest, ThePaperIsTheDefaultPaperWithItsMarginsInInches)
{
    Controller::configureUserDefaultsOnApplicationLaunch();
    const Paper paper = builtInDefaultPaper();
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), paper.ppdName);
    EXPECT_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 0.25);
    EXPECT_EQ(Controller::rightMarginForPaperSizeLineMeasuring(), 0.25);
}

TEST_F(FirstLaunchTest, LeftAndRightMarginsAreDistinctAndAPaperWithoutANameGivesMarginsOnly)
{
    writeFirstLaunchDefaults(m_defaults, [] {
        Paper paper;
        paper.margins = {.top = 1, .left = 36, .bottom = 2, .right = 90};
        return paper;
    });
    EXPECT_EQ(stored(Preference::PaperName), std::nullopt);
    EXPECT_EQ(stored(Preference::LeftMargin), DefaultsValue(0.5));
    EXPECT_EQ(stored(Preference::RightMargin), DefaultsValue(1.25));
}

TEST_F(FirstLaunchTest, APaperThatCannotBeReadIsLoggedWithItsStatusAndLeavesThePaperKeysUnwritten)
{
    writeFirstLaunchDefaults(m_defaults, [] { return PrintingStatus{-30872}; });
    EXPECT_THAT(m_log.messages(),
        ElementsAre(QStringLiteral("Error getting default paper name/margins!"), QStringLiteral("-30872")));
    for (const Preference preference :
        {Preference::PaperName, Preference::LeftMargin, Preference::RightMargin})
        EXPECT_EQ(stored(preference), std::nullopt) << keyOf(preference).toStdString();
    EXPECT_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 0);
    EXPECT_TRUE(Controller::isShowLineCountPreferenceOn());
    EXPECT_EQ(stored(Preference::HasAppBeenOpened), DefaultsValue(true));
}

TEST_F(FirstLaunchTest, WithoutAPlaceToStoreThemTheDefaultsAreInMemoryUntilThereIsOne)
{
    ASSERT_TRUE(QDir().mkpath(world().configuration() + QStringLiteral("/quillbay")));
    UnreachableSuite obstacle;
    Controller::configureUserDefaultsOnApplicationLaunch();
    EXPECT_TRUE(Controller::shouldEnforceTrailingPeriodForSentencesCount());
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), builtInDefaultPaper().ppdName);
    EXPECT_EQ(Controller::rightMarginForPaperSizeLineMeasuring(), 0.25);
    ASSERT_TRUE(Controller::unstoredDefaults().has_value());
    EXPECT_TRUE(
        Controller::unstoredDefaults()->file.endsWith(QStringLiteral("K7Q2M9X4T1.com.quillbay.sqlite3")));
    EXPECT_EQ(Controller::unstoredDefaults()->reason, QStringLiteral("Not a directory"));
    // Another process has none of them.
    EXPECT_EQ(stored(Preference::ShowLineCount), std::nullopt);

    obstacle.end();
    Controller::configureUserDefaultsOnApplicationLaunch();
    EXPECT_FALSE(Controller::unstoredDefaults().has_value());
    EXPECT_EQ(stored(Preference::ShowLineCount), DefaultsValue(true));
}

TEST_F(FirstLaunchTest, TheSecondTimeItChangesNothingAndLooksUpNoPaper)
{
    Controller::configureUserDefaultsOnApplicationLaunch();
    m_defaults.setObject(false, keyOf(Preference::ShowLineCount));
    m_defaults.setObject(qint64{3}, keyOf(Preference::MinNumberOfSentencesForParagraphCount));
    m_defaults.setObject(QStringLiteral("Tabloid"), keyOf(Preference::PaperName));
    Controller::configureUserDefaultsOnApplicationLaunch();
    writeFirstLaunchDefaults(m_defaults, []() -> Result<Paper, PrintingStatus> {
        ADD_FAILURE() << "asked for a paper";
        return PrintingStatus{1};
    });
    EXPECT_FALSE(Controller::isShowLineCountPreferenceOn());
    EXPECT_EQ(Controller::minNumberOfSentencesForParagraphCount(), 3);
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("Tabloid"));
}

TEST_F(FirstLaunchTest, AnotherProcessThatLaunchesDuringThePaperLookupIsNotOverwritten)
{
    writeFirstLaunchDefaults(m_defaults, [] {
        Controller::configureUserDefaultsOnApplicationLaunch();
        UserDefaults(QStringLiteral("K7Q2M9X4T1.com.quillbay"))
            .setObject(false, keyOf(Preference::ShowLineCount));
        return Paper();
    });
    EXPECT_FALSE(Controller::isShowLineCountPreferenceOn());
    EXPECT_TRUE(Controller::paperNameForLineMeasuring().has_value());
}

TEST_F(FirstLaunchTest, ProcessesThatLaunchTogetherKeepTheChangesOfBoth)
{
    SessionBus::start();
    ChildProcess first(testProgram(QStringLiteral("preference_user")));
    ChildProcess second(testProgram(QStringLiteral("preference_user")));
    for (ChildProcess *child : {&first, &second}) {
        child->start({});
        ASSERT_EQ(child->readLine(), QByteArray("ready"));
    }
    for (int round = 0; round < 30; ++round) {
        QDir(world().configuration() + QStringLiteral("/quillbay")).removeRecursively();
        first.writeLine("launch-and-hide lines");
        second.writeLine("launch-and-hide sentences");
        ASSERT_EQ(first.readLine(), QByteArray("done"));
        ASSERT_EQ(second.readLine(), QByteArray("done"));
        ASSERT_FALSE(Controller::isShowLineCountPreferenceOn()) << "round " << round;
        ASSERT_FALSE(Controller::isShowSentencesCountPreferenceOn()) << "round " << round;
        ASSERT_TRUE(Controller::isShowParagraphCountPreferenceOn()) << "round " << round;
    }
}
