// SPDX-License-Identifier: MIT
#include "platform/locale/CurrentLocale.h"

#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QFile>

#include <clocale>

namespace {

class CurrentLocaleTest : public QuillbayTest {
protected:
    /// Changes or unsets a variable, and applies the environment.
    static void change(const char *variable, const char *value)
    {
        if (value)
            ::setenv(variable, value, 1);
        else
            ::unsetenv(variable);
        takeLocaleFromEnvironment();
    }
    /// Makes this locale the only installed one besides "C".
    static void generateLocale(const QByteArray &name)
    {
        const QByteArray folder = QFile::encodeName(world().root()) + "/locales";
        ASSERT_TRUE(QDir().mkpath(QFile::decodeName(folder)));
        const ChildProcess::Outcome outcome =
            ChildProcess(QStringLiteral("localedef"))
                .run({"--no-archive", "-i", name, "-f", "UTF-8", folder + '/' + name + ".UTF-8"});
        ASSERT_EQ(outcome.exitStatus, 0) << outcome.errors.toStdString();
        qputenv("LOCPATH", folder);
    }
    static bool canGenerateLocales()
    {
        return QFile::exists(QStringLiteral("/usr/share/i18n/locales/de_DE"));
    }
};

} // namespace

TEST_F(CurrentLocaleTest, NamesLanguageAndRegionWithoutTheCharset)
{
    setLocale("en_US.UTF-8");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("en_US"));
    setLocale("fr_FR");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("fr_FR"));
    setLocale("en");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("en"));
}

TEST_F(CurrentLocaleTest, IsEnUsPosixUnderCAndPosixAndWithoutALocale)
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
    change("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("de_DE"));
    change("LC_ALL", nullptr);
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("en_US"));
}

TEST_F(CurrentLocaleTest, TheCurrentLocaleHasPrecedenceOverTheEnvironment)
{
    SKIP_WITHOUT_PACKAGE(canGenerateLocales(), "locales");
    generateLocale("de_DE");
    setLocale("de_DE.UTF-8");
    ASSERT_STREQ(std::setlocale(LC_MESSAGES, nullptr), "de_DE.UTF-8");
    qputenv("LC_ALL", "fr_FR.UTF-8"); // without a call to setlocale()
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("de_DE"));
}

TEST_F(CurrentLocaleTest, FollowsSetlocaleOverTheEnvironment)
{
    setLocale("de_DE.UTF-8");
    ASSERT_TRUE(std::setlocale(LC_ALL, "C.UTF-8"));
    // C.UTF-8 is a C locale: as with "C", the environment decides.
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("de_DE"));
}

TEST_F(CurrentLocaleTest, LcAllPrecedesLcMessagesPrecedesLangAndEmptyCountsAsUnset)
{
    setLocale("en_US.UTF-8");
    change("LC_MESSAGES", "fr_FR.UTF-8");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("fr_FR"));
    change("LC_ALL", "de_AT.UTF-8");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("de_AT"));
    change("LC_ALL", "");
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("fr_FR"));
}

TEST_F(CurrentLocaleTest, AnOverlongNameIsNotALocale)
{
    setLocale(QByteArray(5000, 'x').constData());
    EXPECT_EQ(currentLocaleIdentifier(), QStringLiteral("en_US_POSIX"));
}

// Compared to ICU, which reads the environment only once per process.
TEST_F(CurrentLocaleTest, EqualsIcusReadingOfTheEnvironment)
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
