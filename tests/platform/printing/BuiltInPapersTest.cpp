// SPDX-License-Identifier: MIT
#include "tests/harness/QuillbayTest.h"

#include "platform/printing/BuiltInPapers.h"

#include <QFile>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <sys/stat.h>

namespace {

std::optional<Paper> paperNamed(const QString &name)
{
    const auto found = std::find_if(builtInPapers().begin(), builtInPapers().end(),
        [&](const Paper &paper) { return paper.ppdName == name; });
    return found == builtInPapers().end() ? std::nullopt : std::optional(*found);
}

} // namespace

class BuiltInPapersTest : public QuillbayTest {
protected:
    // Without this, /etc/papersize of the machine would decide.
    void SetUp() override { configurePaperFile(world().root() + QStringLiteral("/no-papersize")); }

    static void configurePaperFile(const QString &path)
    {
        ::setenv("PAPERCONF", QFile::encodeName(path).constData(), 1);
    }
    static QString defaultName() { return builtInDefaultPaper().ppdName.value_or(QString()); }
};

TEST_F(BuiltInPapersTest, TheCatalogueHoldsTheCommonPapersInPortraitWithGenericMargins)
{
    for (const char *name : {"Letter", "Legal", "Executive", "Statement", "Tabloid", "A3", "A4", "A5", "A6",
             "B5", "ISOB5", "Env10", "EnvMonarch", "EnvDL", "EnvC5", "EnvC6"}) {
        const std::optional<Paper> paper = paperNamed(QString::fromLatin1(name));
        ASSERT_TRUE(paper) << name;
        EXPECT_LT(paper->size.width(), paper->size.height()) << name;
        EXPECT_EQ(paper->margins, (PaperMargins{.top = 36, .left = 18, .bottom = 36, .right = 18})) << name;
        EXPECT_TRUE(paper->identifier) << name;
        EXPECT_FALSE(paper->isCustom) << name;
    }
}

TEST_F(BuiltInPapersTest, SizesArePoints)
{
    EXPECT_EQ(paperNamed(QStringLiteral("Letter"))->size, QSizeF(612, 792));
    EXPECT_EQ(paperNamed(QStringLiteral("A4"))->size, QSizeF(595, 842));
    EXPECT_EQ(paperNamed(QStringLiteral("Env10"))->size, QSizeF(297, 684));
}

TEST_F(BuiltInPapersTest, NamesAndIdentifiersAreUnique)
{
    std::set<QString> names;
    std::set<QString> identifiers;
    for (const Paper &paper : builtInPapers()) {
        EXPECT_TRUE(names.insert(*paper.ppdName).second) << paper.ppdName->toStdString();
        EXPECT_TRUE(identifiers.insert(*paper.identifier).second) << paper.identifier->toStdString();
    }
}

TEST_F(BuiltInPapersTest, TheEnvironmentsPaperSizeHasPrecedence)
{
    configurePaperFile(writeFile(QStringLiteral("papersize"), "a3\n"));
    ::setenv("LC_ALL", "de_DE.UTF-8", 1);
    ::setenv("PAPERSIZE", "LEGAL", 1);
    EXPECT_EQ(defaultName(), QStringLiteral("Legal"));
}

TEST_F(BuiltInPapersTest, TheConfiguredPaperFilePrecedesTheLocale)
{
    configurePaperFile(writeFile(QStringLiteral("papersize"), "# of this office\n  A5  # mostly\n"));
    EXPECT_EQ(defaultName(), QStringLiteral("A5"));
}

TEST_F(BuiltInPapersTest, LetterIsTakenFromAPaperFileThatNamesIt)
{
    ::setenv("LC_ALL", "de_DE.UTF-8", 1);
    configurePaperFile(writeFile(QStringLiteral("papersize"), "letter\n"));
    EXPECT_EQ(defaultName(), QStringLiteral("Letter"));
}

TEST_F(BuiltInPapersTest, APaperFileWithoutANameLeavesTheChoiceToTheLocale)
{
    ::setenv("LC_ALL", "de_DE.UTF-8", 1);
    for (const char *contents : {"", "\n", "# letter\n"}) {
        configurePaperFile(writeFile(QStringLiteral("papersize"), contents));
        EXPECT_EQ(defaultName(), QStringLiteral("A4")) << contents;
    }
}

TEST_F(BuiltInPapersTest, APaperFileOfAnotherKindIsIgnoredAndNotReadForEver)
{
    ::setenv("LC_ALL", "de_DE.UTF-8", 1);
    const QString pipe = world().root() + QStringLiteral("/pipe");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString &path : {world().root(), QStringLiteral("/dev/zero"), pipe,
             writeFile(QStringLiteral("long"), QByteArray(1'000'000, ' '))}) {
        configurePaperFile(path);
        EXPECT_EQ(defaultName(), QStringLiteral("A4")) << path.toStdString();
    }
}

TEST_F(BuiltInPapersTest, AConfiguredNameThatTheCatalogueLacksLeavesTheChoiceToTheLocale)
{
    for (const char *name : {"nonsense", "a0", "10x14"}) {
        ::setenv("PAPERSIZE", name, 1);
        ::setenv("LC_ALL", "en_US.UTF-8", 1);
        EXPECT_EQ(defaultName(), QStringLiteral("Letter")) << name;
        ::setenv("LC_ALL", "de_DE.UTF-8", 1);
        EXPECT_EQ(defaultName(), QStringLiteral("A4")) << name;
    }
}

TEST_F(BuiltInPapersTest, ConfiguredNamesAreFoundByTheirSize)
{
    const std::vector<std::pair<const char *, const char *>> names{{"note", "Letter"}, {"11x17", "Tabloid"},
        {"halfletter", "Statement"}, {"b5", "ISOB5"}, {"Comm10", "Env10"}, {"DL", "EnvDL"}};
    for (const auto &[configured, expected] : names) {
        ::setenv("PAPERSIZE", configured, 1);
        EXPECT_EQ(defaultName(), QString::fromLatin1(expected));
    }
}

TEST_F(BuiltInPapersTest, TheRegionOfTheLocaleChoosesWithoutAConfiguration)
{
    const std::vector<std::pair<const char *, const char *>> locales{{"en_US.UTF-8", "Letter"},
        {"en_CA", "Letter"}, {"de_US.UTF-8@euro", "Letter"}, {"en_GB.UTF-8", "A4"}, {"de_DE@euro", "A4"},
        {"xx_ZZ", "A4"}, {"not a locale", "A4"}};
    for (const auto &[locale, expected] : locales) {
        ::setenv("LC_ALL", locale, 1);
        EXPECT_EQ(defaultName(), QString::fromLatin1(expected)) << locale;
    }
}

TEST_F(BuiltInPapersTest, TheVariablesOfTheLocaleRankAsInPosix)
{
    ::setenv("LANG", "en_US.UTF-8", 1);
    EXPECT_EQ(defaultName(), QStringLiteral("Letter"));
    ::setenv("LC_PAPER", "de_DE.UTF-8", 1);
    EXPECT_EQ(defaultName(), QStringLiteral("A4"));
    ::setenv("LC_ALL", "en_CA.UTF-8", 1);
    EXPECT_EQ(defaultName(), QStringLiteral("Letter"));
    ::setenv("LC_ALL", "", 1);
    EXPECT_EQ(defaultName(), QStringLiteral("A4"));
}

TEST_F(BuiltInPapersTest, WithoutARegionThePaperIsA4)
{
    for (const char *locale : {"C", "C.UTF-8", "POSIX", ""}) {
        ::setenv("LANG", locale, 1);
        EXPECT_EQ(defaultName(), QStringLiteral("A4")) << locale;
    }
    const QByteArray endless(100'000, 'x');
    ::setenv("LANG", endless.constData(), 1);
    EXPECT_EQ(defaultName(), QStringLiteral("A4"));
}
