// SPDX-License-Identifier: MIT
#include "preferences/EditablePreferences.h"

#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/QuillbayTest.h"

#include <QSet>

namespace {

class EditablePreferencesTest : public QuillbayTest {
protected:
    EditablePreferencesTest() { QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch(); }
};

} // namespace

TEST_F(EditablePreferencesTest, EveryPreferenceButThatOfTheFirstLaunchIsThereOnce)
{
    QSet<Preference> preferences;
    QSet<QString> names;
    for (const EditablePreference &row : editablePreferences()) {
        preferences.insert(row.preference);
        names.insert(row.name);
        EXPECT_EQ(editablePreferenceNamed(QString(row.name)), &row);
        EXPECT_EQ(&editablePreference(row.preference), &row);
    }
    EXPECT_EQ(preferences.size(), static_cast<qsizetype>(Preference::HasAppBeenOpened));
    EXPECT_FALSE(preferences.contains(Preference::HasAppBeenOpened));
    EXPECT_EQ(names.size(), preferences.size());
    EXPECT_EQ(editablePreferenceNamed(u"Show-Lines"), nullptr);
}

TEST_F(EditablePreferencesTest, AfterTheFirstLaunchEveryValueIsItsDefault)
{
    const PrinterAnswer printer = PrintSettings::shared().printer();
    for (const EditablePreference &row : editablePreferences())
        EXPECT_EQ(valueOf(row), defaultValueOf(row, printer)) << row.name.data();
}

TEST_F(EditablePreferencesTest, EveryRowWritesItsOwnKey)
{
    UserDefaults elsewhere(QStringLiteral("K7Q2M9X4T1.com.quillbay"));
    const auto otherValue = [](const EditablePreference &row) -> DefaultsValue {
        const std::optional<DefaultsValue> value = valueOf(row);
        if (const auto *isOn = std::get_if<bool>(&*value))
            return !*isOn;
        if (std::holds_alternative<qint64>(*value))
            return qint64{70};
        if (std::holds_alternative<double>(*value))
            return 0.75;
        return row.preference == Preference::StandardPageSize ? QStringLiteral("250 words")
                                                              : QStringLiteral("A5");
    };
    for (const EditablePreference &row : editablePreferences()) {
        const DefaultsValue value = otherValue(row);
        EXPECT_TRUE(setValue(row, value)) << row.name.data();
        EXPECT_EQ(elsewhere.objectForKey(keyOf(row.preference)), value) << row.name.data();
    }
}

TEST_F(EditablePreferencesTest, AValueOfAnotherKindIsNotStored)
{
    EXPECT_FALSE(setValue(editablePreference(Preference::ShowLineCount), QStringLiteral("no")));
    EXPECT_TRUE(QBYUserDefaultsController::isShowLineCountPreferenceOn());
}

TEST_F(EditablePreferencesTest, PaperAndMarginsHaveNoDefaultWhileThePrinterIsSilent)
{
    const PrinterAnswer silent{}; // as it is until the printer answers
    for (const Preference preference :
        {Preference::PaperName, Preference::LeftMargin, Preference::RightMargin})
        EXPECT_EQ(defaultValueOf(editablePreference(preference), silent), std::nullopt);
    EXPECT_EQ(defaultValueOf(editablePreference(Preference::ShowLineCount), silent), DefaultsValue(true));
}

TEST_F(EditablePreferencesTest, MarginsLeaveHalfAnInch)
{
    EXPECT_DOUBLE_EQ(maxMargin(612, 1), 7);
    EXPECT_DOUBLE_EQ(maxMargin(612, -3), 8);
    EXPECT_DOUBLE_EQ(maxMargin(612, 20), 0);
    EXPECT_TRUE(leaveColumn(4, 4, 612));
    EXPECT_FALSE(leaveColumn(4, 4.1, 612));
    EXPECT_FALSE(leaveColumn(0, 9, 612));
}
