// SPDX-License-Identifier: MIT
// The page with the rules: what a user changes there, and what others change meanwhile.
#include "preferences/EditablePreferences.h"
#include "preferences/FurtherPreferences.h"
#include "tests/desk/DeskTest.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

using ::testing::HasSubstr;

namespace {

class RulesPageTest : public DeskTest { };

} // namespace

TEST_F(RulesPageTest, ShowsWhatIsStored)
{
    Controller::setShowLineCountPreference(false);
    Controller::setMinNumberOfSentencesForParagraphCount(3);
    open();
    EXPECT_FALSE(control<QCheckBox>("linesCheckBox").isChecked());
    EXPECT_TRUE(control<QCheckBox>("sentencesCheckBox").isChecked());
    EXPECT_TRUE(control<QCheckBox>("punctuationCheckBox").isChecked());
    EXPECT_FALSE(control<QCheckBox>("speechCheckBox").isChecked());
    EXPECT_EQ(control<QSpinBox>("minimumSpinBox").value(), 3);
}

TEST_F(RulesPageTest, AClickIsStoredAtOnceAndUndoTakesItBack)
{
    open();
    click(control<QCheckBox>("linesCheckBox"));
    EXPECT_TRUE(waitUntil([] { return !Controller::isShowLineCountPreferenceOn(); }));
    press("ctrl+z");
    EXPECT_TRUE(waitUntil([] { return Controller::isShowLineCountPreferenceOn(); }));
    EXPECT_TRUE(control<QCheckBox>("linesCheckBox").isChecked());
    press("ctrl+shift+z");
    EXPECT_TRUE(waitUntil([] { return !Controller::isShowLineCountPreferenceOn(); }));
}

TEST_F(RulesPageTest, EverySwitchIsReachedByItsMnemonicAndChangesItsOwnPreference)
{
    struct Switch {
        const char *mnemonic;
        bool (*isOn)();
    };
    open();
    for (const Switch &wanted :
        {Switch{"alt+w", Controller::isShowCharacterCountIncludingWhitespacePreferenceOn},
            Switch{"alt+s", Controller::isShowSentencesCountPreferenceOn},
            Switch{"alt+l", Controller::isShowLineCountPreferenceOn},
            Switch{"alt+b", Controller::isShowHardLineBreakCountPreferenceOn},
            Switch{"alt+p", Controller::isShowParagraphCountPreferenceOn},
            Switch{"alt+i", Controller::isShowHardIndentParagraphCountPreferenceOn},
            Switch{"alt+t", Controller::shouldEnforceTrailingPeriodForSentencesCount},
            Switch{"alt+k", Controller::shouldSayWordCountOutloudOnSaveInWatchFileMode}}) {
        const bool before = wanted.isOn();
        press(wanted.mnemonic);
        EXPECT_TRUE(waitUntil([&] { return wanted.isOn() != before; })) << wanted.mnemonic;
    }
    EXPECT_TRUE(Controller::isShowCharacterCountPreferenceOn());
}

TEST_F(RulesPageTest, CharactersTakeThoseIncludingWhiteSpaceWithThem)
{
    open();
    auto &whitespace = control<QCheckBox>("whitespaceCheckBox");
    click(control<QCheckBox>("charactersCheckBox"));
    EXPECT_TRUE(waitUntil([&] { return !whitespace.isEnabled(); }));
    EXPECT_FALSE(whitespace.isChecked());
    EXPECT_FALSE(Controller::isShowCharacterCountIncludingWhitespacePreferenceOn());
    click(control<QCheckBox>("charactersCheckBox"));
    EXPECT_TRUE(waitUntil([&] { return whitespace.isEnabled() && whitespace.isChecked(); }));
}

TEST_F(RulesPageTest, UndoRestoresBothOfThePair)
{
    Controller::setShowCharacterCountIncludingWhitespacePreference(false);
    open();
    click(control<QCheckBox>("charactersCheckBox"));
    EXPECT_TRUE(waitUntil([] { return !Controller::isShowCharacterCountPreferenceOn(); }));
    press("ctrl+z");
    EXPECT_TRUE(waitUntil([] { return Controller::isShowCharacterCountPreferenceOn(); }));
    EXPECT_FALSE(Controller::isShowCharacterCountIncludingWhitespacePreferenceOn());
}

TEST_F(RulesPageTest, TheMinimumIsTypedAndStepped)
{
    open();
    press("alt+m");
    auto &minimum = control<QSpinBox>("minimumSpinBox");
    EXPECT_TRUE(waitUntil([&] { return minimum.hasFocus(); }));
    TestDisplay::xdotool({QStringLiteral("key"), QStringLiteral("5"), QStringLiteral("Up"),
        QStringLiteral("Up"), QStringLiteral("Up")});
    EXPECT_TRUE(waitUntil([] { return Controller::minNumberOfSentencesForParagraphCount() == 8; }));
    control<QAction>("undoAction").trigger(); // the steps are one
    EXPECT_EQ(Controller::minNumberOfSentencesForParagraphCount(), 0);
}

TEST_F(RulesPageTest, WhatIsCountedBesideTheEightIsChosenAtTheEnd)
{
    open();
    click(control<QCheckBox>("pagesCheckBox"));
    EXPECT_TRUE(waitUntil([] { return FurtherPreferences::isShown(Preference::ShowPages); }));
    auto &speed = control<QSpinBox>("readingSpeedSpinBox");
    EXPECT_EQ(speed.value(), 238);
    speed.setValue(300);
    EXPECT_EQ(FurtherPreferences::speed(Preference::ReadingSpeed), 300);
    press("ctrl+z");
    EXPECT_TRUE(waitUntil([&] { return speed.value() == 238; }));
}

TEST_F(RulesPageTest, AStandardPageIsChosenOrTyped)
{
    open();
    auto &sizes = control<QComboBox>("standardPageComboBox");
    EXPECT_EQ(sizes.currentText(), QStringLiteral("1,800 characters"));
    EXPECT_EQ(sizes.count(), 5);
    const auto type = [&sizes](const QString &text) {
        sizes.setEditText(text);
        Q_EMIT sizes.lineEdit()->editingFinished();
        return FurtherPreferences::standardPage();
    };
    using Unit = StandardPage::Unit;
    EXPECT_EQ(type(QStringLiteral("275 w")), (StandardPage{275, Unit::Words}));
    EXPECT_EQ(sizes.currentText(), QStringLiteral("275 words"));
    EXPECT_EQ(type(QStringLiteral("280")), (StandardPage{280, Unit::Words}));
    EXPECT_EQ(type(QStringLiteral("2,000 characters")), (StandardPage{2000, Unit::Characters}));
    EXPECT_EQ(type(QStringLiteral("3 lines")), (StandardPage{2000, Unit::Characters}));
    EXPECT_EQ(sizes.currentText(), QStringLiteral("2,000 characters"));
}

TEST_F(RulesPageTest, ANumberBeyondTheRangeIsShownAndStays)
{
    Controller::setMinNumberOfSentencesForParagraphCount(70'000);
    open();
    EXPECT_EQ(control<QSpinBox>("minimumSpinBox").value(), 70'000);
    EXPECT_EQ(Controller::minNumberOfSentencesForParagraphCount(), 70'000);
}

TEST_F(RulesPageTest, AChangeElsewhereShowsAtOnceAnnouncedOrNot)
{
    open();
    // Another object with the same file, as another process has it.
    UserDefaults elsewhere(QStringLiteral("K7Q2M9X4T1.com.quillbay"));
    elsewhere.setObject(false, keyOf(Preference::EnforceTrailingPeriodForSentencesCount));
    EXPECT_TRUE(waitUntil([&] { return !control<QCheckBox>("punctuationCheckBox").isChecked(); }));
    Controller::setShowSentencesCountPreference(false);
    EXPECT_TRUE(waitUntil([&] { return !control<QCheckBox>("sentencesCheckBox").isChecked(); }));
}

TEST_F(RulesPageTest, WindowAndTerminalAgreeAtOnce)
{
    const auto quillbay = [](const QByteArrayList &words) {
        return ChildProcess(productProgram(QStringLiteral("quillbay")))
            .run(QByteArrayList{"preferences"} + words);
    };
    open();
    EXPECT_EQ(quillbay({"show-lines", "off"}).exitStatus, 0);
    EXPECT_TRUE(waitUntil([&] { return !control<QCheckBox>("linesCheckBox").isChecked(); }));
    EXPECT_EQ(quillbay({"terminal-punctuation", "off"}).exitStatus, 0);
    EXPECT_TRUE(waitUntil([&] { return !control<QCheckBox>("punctuationCheckBox").isChecked(); }));
    press("alt+t");
    EXPECT_TRUE(waitUntil([&] { return control<QCheckBox>("punctuationCheckBox").isChecked(); }));
    EXPECT_EQ(quillbay({"terminal-punctuation"}).output, QByteArray("on\n"));
}

TEST_F(RulesPageTest, RestoreDefaultsIsOneStepForUndo)
{
    Controller::setShowLineCountPreference(false);
    Controller::setMinNumberOfSentencesForParagraphCount(2);
    Controller::setCurrentPaperNamePreference(QStringLiteral("A5"));
    Controller::setLeftMarginForPaperSizeLineMeasuring(1.5);
    const std::optional<QString> own = Controller::paperNameForLineMeasuring();
    open();
    click(control<QPushButton>("restoreButton"));
    EXPECT_TRUE(waitUntil([] { return Controller::isShowLineCountPreferenceOn(); }));
    EXPECT_EQ(Controller::minNumberOfSentencesForParagraphCount(), 0);
    EXPECT_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 0.25);
    EXPECT_NE(Controller::paperNameForLineMeasuring(), own);
    press("ctrl+z");
    EXPECT_TRUE(waitUntil([] { return !Controller::isShowLineCountPreferenceOn(); }));
    EXPECT_EQ(Controller::minNumberOfSentencesForParagraphCount(), 2);
    EXPECT_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 1.5);
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), own);
}

TEST_F(RulesPageTest, AValueThatCannotBeStoredIsReportedAndTheOldOneShown)
{
    open();
    const QString folder = world().configuration() + QStringLiteral("/quillbay");
    ASSERT_TRUE(QDir(folder).removeRecursively());
    QFile obstacle(folder);
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    click(control<QCheckBox>("speechCheckBox"));
    auto &notice = control<QLabel>("noticeLabel");
    EXPECT_TRUE(waitUntil([&] { return notice.isVisible(); }));
    EXPECT_THAT(notice.text().toStdString(), HasSubstr("K7Q2M9X4T1.com.quillbay.sqlite3: cannot be written"));
    EXPECT_FALSE(control<QCheckBox>("speechCheckBox").isChecked());

    ASSERT_TRUE(obstacle.remove());
    click(control<QCheckBox>("speechCheckBox"));
    EXPECT_TRUE(waitUntil([&] { return !notice.isVisible(); }));
    EXPECT_TRUE(Controller::shouldSayWordCountOutloudOnSaveInWatchFileMode());
}

TEST_F(RulesPageTest, WithoutASpeechCommandItSaysSo)
{
    open();
    EXPECT_FALSE(control<QPushButton>("sampleButton").isEnabled());
    EXPECT_THAT(control<QLabel>("speechStateLabel").text().toStdString(), HasSubstr("/nonexistent/say"));
}

TEST_F(RulesPageTest, TheSampleIsSpokenByTheSpeechCommand)
{
    const QString spoken = world().root() + QStringLiteral("/spoken");
    const QString command = writeFile(
        QStringLiteral("say"), "#!/bin/sh\nprintf %s \"$1\" > \"" + QFile::encodeName(spoken) + "\"\n");
    ASSERT_TRUE(QFile::setPermissions(command, QFile::ReadOwner | QFile::ExeOwner));
    open(command);
    click(control<QPushButton>("sampleButton"));
    EXPECT_TRUE(waitUntil([&] { return QFile::exists(spoken) && !readFile(spoken).isEmpty(); }));
    EXPECT_EQ(readFile(spoken), QByteArray("two hundred fifty words"));
    EXPECT_TRUE(waitUntil([&] { return control<QPushButton>("sampleButton").isEnabled(); }));
    EXPECT_FALSE(control<QLabel>("speechStateLabel").isVisible());
}

TEST_F(RulesPageTest, WhatTheSpeechCommandReportsIsShown)
{
    const QString command =
        writeFile(QStringLiteral("say"), "#!/bin/sh\necho 'say: cannot speak' >&2\nexit 1\n");
    ASSERT_TRUE(QFile::setPermissions(command, QFile::ReadOwner | QFile::ExeOwner));
    open(command);
    press("alt+a");
    EXPECT_TRUE(waitUntil(
        [&] { return control<QLabel>("speechStateLabel").text() == QStringLiteral("say: cannot speak"); }));
}
