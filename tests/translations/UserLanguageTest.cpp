// SPDX-License-Identifier: MIT
#include "translations/UserLanguage.h"

#include "tests/harness/QuillbayTest.h"

#include <cstdlib>

namespace {

class UserLanguageTest : public QuillbayTest {
protected:
    UserLanguageTest() { ::unsetenv("LANG"); }

    static void set(const char *variable, const char *value) { ::setenv(variable, value, 1); }
    static std::string language()
    {
        return userLanguageAmong({QStringLiteral("de"), QStringLiteral("fr")}).toStdString();
    }
};

} // namespace

TEST_F(UserLanguageTest, IsThatOfTheLocale)
{
    set("LANG", "de_AT.UTF-8@euro");
    EXPECT_EQ(language(), "de");
}

TEST_F(UserLanguageTest, IsThatOfTheFirstVariableThatIsSet)
{
    set("LANG", "de_DE.UTF-8");
    set("LC_MESSAGES", "fr_CA.UTF-8");
    EXPECT_EQ(language(), "fr");
    set("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(language(), "de");
    set("LC_ALL", "");
    EXPECT_EQ(language(), "fr");
}

TEST_F(UserLanguageTest, DoesNotFollowTheOtherCategories)
{
    set("LANG", "en_US.UTF-8");
    set("LC_NUMERIC", "de_DE.UTF-8");
    set("LC_CTYPE", "de_DE.UTF-8");
    EXPECT_EQ(language(), "");
}

TEST_F(UserLanguageTest, IsTheFirstOfTheListForWhichThereAreTexts)
{
    set("LANG", "en_US.UTF-8");
    set("LANGUAGE", "nds:fr_BE:de");
    EXPECT_EQ(language(), "fr");
}

TEST_F(UserLanguageTest, IsEnglishWhereTheListHasItFirst)
{
    set("LANG", "de_DE.UTF-8");
    set("LANGUAGE", "ja:en_GB:de");
    EXPECT_EQ(language(), "");
}

TEST_F(UserLanguageTest, IsEnglishInTheCLocaleWhateverTheList)
{
    set("LANGUAGE", "de");
    EXPECT_EQ(language(), "");
    for (const char *const name : {"C", "POSIX", "C.UTF-8"}) {
        set("LANG", name);
        EXPECT_EQ(language(), "") << name;
    }
}

TEST_F(UserLanguageTest, IsEnglishForALanguageWithoutTexts)
{
    set("LANG", "ar_EG.UTF-8");
    EXPECT_EQ(language(), "");
    set("LANG", "deu_DE"); // no language of two letters
    EXPECT_EQ(language(), "");
}
