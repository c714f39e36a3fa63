// SPDX-License-Identifier: MIT
#include "platform/locale/CurrentLocale.h"

#include "tests/harness/QuillbayTest.h"

#include <clocale>

class CurrentLocaleTest : public QuillbayTest { };

TEST_F(CurrentLocaleTest, NamesLanguageAndRegionWithoutTheCharset)
{
    setLocale("en_US.UTF-8");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("en_US"));
    setLocale("fr_FR");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("fr_FR"));
    setLocale("en");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("en"));
}

TEST_F(CurrentLocaleTest, IsEnUsPosixUnderCAndPosixAndWhereNothingIsSet)
{
    for (const char *name : {"C", "POSIX", "C.UTF-8", ""}) {
        setLocale(name);
        EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("en_US_POSIX")) << name;
    }
    ::unsetenv("LANG");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("en_US_POSIX"));
}

TEST_F(CurrentLocaleTest, FollowsAChangeWithinTheProcess)
{
    setLocale("en_US.UTF-8");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("en_US"));
    qputenv("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("de_DE"));
    qunsetenv("LC_ALL");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("en_US"));
}

TEST_F(CurrentLocaleTest, FollowsSetlocaleOverTheEnvironment)
{
    setLocale("de_DE.UTF-8");
    if (!std::setlocale(LC_ALL, "C.UTF-8"))
        GTEST_SKIP() << "the locale C.UTF-8 is not installed";
    // C.UTF-8 is a C locale: as under "C" itself, the environment still speaks.
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("de_DE"));
}

TEST_F(CurrentLocaleTest, LcAllComesBeforeLcMessagesBeforeLangAndEmptyCountsAsUnset)
{
    setLocale("en_US.UTF-8");
    qputenv("LC_MESSAGES", "fr_FR.UTF-8");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("fr_FR"));
    qputenv("LC_ALL", "de_AT.UTF-8");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("de_AT"));
    qputenv("LC_ALL", "");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("fr_FR"));
}

TEST_F(CurrentLocaleTest, AnAbsurdNameIsNoLocale)
{
    setLocale(QByteArray(5000, 'x').constData());
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("en_US_POSIX"));
}

// Oracle: ICU's own reading of the environment, which a process can make only once.
TEST_F(CurrentLocaleTest, IsWhatIcuMakesOfTheEnvironment)
{
    for (const char *name : {"C", "POSIX", "C.UTF-8", "en_US.UTF-8", "en_US", "en_GB.UTF-8", "en",
             "de_DE@euro", "de_DE.ISO-8859-15@euro", "zh_TW.Big5", "zh_CN.GB18030", "pt_BR.UTF-8",
             "ja_JP.eucJP", "he_IL", "sr_RS.UTF-8@latin"}) {
        const auto print = [name](const QString &program) {
            return ChildProcess(testProgram(program)).withVariable("LANG", name).run({}).output;
        };
        EXPECT_EQ(print(QStringLiteral("current_locale")), print(QStringLiteral("icu_default_locale")))
            << name;
    }
}
