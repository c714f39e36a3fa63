// SPDX-License-Identifier: MIT
#include "preferences/FurtherPreferences.h"

#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/QuillbayTest.h"

namespace {

class FurtherPreferencesTest : public QuillbayTest {
protected:
    static void store(Preference preference, const DefaultsValue &value)
    {
        QBYUserDefaultsController::sharedUserDefaults().setObject(value, keyOf(preference));
    }
};

} // namespace

TEST_F(FurtherPreferencesTest, NothingIsShownAndWrittenForANewUser)
{
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    for (const Preference preference : {Preference::ShowPages, Preference::ShowStandardPages,
             Preference::ShowReadingTime, Preference::ShowSpeakingTime, Preference::ShowGraphemes}) {
        EXPECT_FALSE(FurtherPreferences::isShown(preference));
        EXPECT_EQ(
            QBYUserDefaultsController::sharedUserDefaults().objectForKey(keyOf(preference)), std::nullopt);
    }
    EXPECT_EQ(FurtherPreferences::standardPage(), StandardPage());
    EXPECT_EQ(FurtherPreferences::speed(Preference::ReadingSpeed), 238);
    EXPECT_EQ(FurtherPreferences::speed(Preference::SpeakingSpeed), 183);
    EXPECT_EQ(FurtherPreferences::verticalMargin(Preference::TopMargin), 1);
}

TEST_F(FurtherPreferencesTest, WhatCannotBeUsedReadsAsWhatCan)
{
    store(Preference::ReadingSpeed, qint64{0});
    store(Preference::SpeakingSpeed, qint64{-1});
    store(Preference::StandardPageSize, QStringLiteral("0 words"));
    store(Preference::TopMargin, -2.0);
    EXPECT_EQ(FurtherPreferences::speed(Preference::ReadingSpeed), FurtherPreferences::minSpeed);
    EXPECT_EQ(FurtherPreferences::speed(Preference::SpeakingSpeed), FurtherPreferences::minSpeed);
    EXPECT_EQ(FurtherPreferences::standardPage(), StandardPage());
    EXPECT_EQ(FurtherPreferences::verticalMargin(Preference::TopMargin), 0);
}

TEST(StandardPage, IsReadAsItIsWritten)
{
    for (const StandardPage &page : offeredStandardPages)
        EXPECT_EQ(StandardPage::fromText(page.text()), page) << page.text().toStdString();
    EXPECT_EQ(StandardPage::fromText(u" 1500 "), (StandardPage{1500, StandardPage::Unit::Characters}));
    EXPECT_EQ(StandardPage::fromText(u"250words"), (StandardPage{250, StandardPage::Unit::Words}));
}

TEST(StandardPage, HasASizeAndAKnownUnit)
{
    for (const char16_t *text : {u"", u"0", u"-5", u"100001", u"99999999999999999999", u"words", u"250 lines",
             u"1.5 words", u"250 words each", u"\u0661\u0660"})
        EXPECT_EQ(StandardPage::fromText(text), std::nullopt) << QString::fromUtf16(text).toStdString();
}
