// SPDX-License-Identifier: MIT
// What programs say of themselves and what they do.
#include "manual/ManualPages.h"

#include "manual/HelpText.h"
#include "preferences/EditablePreferences.h"
#include "tests/harness/QuillbayTest.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

using ::testing::StartsWith;
using ::testing::UnorderedElementsAreArray;

namespace {

class ManualPagesTest : public QuillbayTest {
protected:
    static ChildProcess::Outcome run(const ManualPage &page, const QByteArrayList &words)
    {
        ChildProcess process(productProgram(QString::fromLatin1(page.program)));
        process.withoutVariable("DBUS_SESSION_BUS_ADDRESS").withoutVariable("DISPLAY");
        process.withoutVariable("QT_QPA_PLATFORM").withoutVariable("WAYLAND_DISPLAY");
        return process.run((page.command ? QByteArrayList{page.command} : QByteArrayList()) + words);
    }

    /// language: as "de/".
    static QString manFile(const ManualPage &page, const char *language = "")
    {
        return QStringLiteral(SHARE_FOLDER "/man/%3man%1/%2.%1")
            .arg(QString::number(page.section), QString::fromLatin1(page.pageName()),
                QString::fromLatin1(language));
    }
};

QStringList optionsIn(const QString &text)
{
    QStringList names;
    static const QRegularExpression option(QStringLiteral("--([a-z-]+)"));
    for (const auto &match : option.globalMatch(text))
        names.append(match.captured(1));
    return names;
}

} // namespace

TEST_F(ManualPagesTest, ACommandAcceptsEveryOptionOfItsPage)
{
    for (const ManualPage *const page : manualPages()) {
        for (const ManualOption &option : page->options) {
            if (!page->command)
                continue;
            QByteArrayList words{QByteArray("--") + option.name};
            if (option.placeholder)
                words.append("value");
            const ChildProcess::Outcome outcome = run(*page, words + QByteArrayList{"--help"});
            const bool isAccepted = !outcome.errors.contains("invalid option");
            EXPECT_TRUE(isAccepted) << page->pageName().constData() << ' ' << option.name;
        }
    }
}

TEST_F(ManualPagesTest, AProgramAcceptsEveryOptionOfItsPage)
{
    for (const ManualPage *const page : {&quillbayPage(), &deskPage(), &countingServicePage()}) {
        for (const ManualOption &option : page->options) {
            QByteArrayList words{QByteArray("--") + option.name};
            if (option.placeholder)
                words.append("1");
            // Without a bus and a display the others fail, which is no wrong usage.
            EXPECT_NE(run(*page, words).exitStatus, 2) << page->program << ' ' << option.name;
            if (option.letter) {
                EXPECT_EQ(run(*page, {QByteArray("-") + option.letter}).output, run(*page, words).output);
            }
        }
    }
}

TEST_F(ManualPagesTest, HelpIsThatOfThePageAndFitsATerminal)
{
    for (const ManualPage *const page : manualPages()) {
        if (page->options.empty())
            continue;
        const ChildProcess::Outcome outcome = run(*page, {"--help"});
        EXPECT_EQ(outcome.exitStatus, 0);
        EXPECT_EQ(outcome.output, helpText(*page));
        EXPECT_EQ(outcome.errors, QByteArray());
        for (const QString &line : QString::fromUtf8(outcome.output).split(u'\n'))
            EXPECT_LE(line.size(), 80) << line.toStdString();
        for (const ManualOption &option : page->options)
            EXPECT_TRUE(outcome.output.contains("--" + QByteArray(option.name))) << option.name;
    }
}

TEST_F(ManualPagesTest, HelpIsAlsoACommand)
{
    EXPECT_EQ(run(quillbayPage(), {"help"}).output, helpText(quillbayPage()));
    for (const ManualPage *const page : manualPages()) {
        if (page->command) {
            EXPECT_EQ(run(quillbayPage(), {"help", page->command}).output, helpText(*page));
        }
    }
    EXPECT_EQ(run(quillbayPage(), {"help", "frobnicate"}).errors,
        "quillbay: unknown command 'frobnicate'\nTry 'quillbay --help' for more.\n");
    EXPECT_EQ(run(quillbayPage(), {"help", "count", "text"}).exitStatus, 2);
}

TEST_F(ManualPagesTest, TheUsageNamesTheOptionsThatThereAre)
{
    for (const ManualPage *const page : manualPages()) {
        QStringList inUsage;
        for (const char *const usage : page->usages)
            inUsage += optionsIn(QString::fromUtf8(usage));
        inUsage.removeDuplicates();
        QStringList inPage;
        for (const ManualOption &option : page->options) {
            if (option.name != QByteArray("help") && option.name != QByteArray("version"))
                inPage.append(QString::fromLatin1(option.name));
        }
        EXPECT_THAT(inUsage, UnorderedElementsAreArray(inPage)) << page->pageName().constData();
    }
}

TEST_F(ManualPagesTest, QuillbayListsItsCommands)
{
    QByteArrayList listed;
    for (const ManualTerm &term : quillbayPage().terms)
        listed.append(term.name);
    QByteArrayList commands{"help"};
    for (const ManualPage *const page : manualPages()) {
        if (page->command)
            commands.append(page->command);
    }
    EXPECT_THAT(listed, UnorderedElementsAreArray(commands));
}

TEST_F(ManualPagesTest, ThePageOfPreferencesListsEachOfThem)
{
    QByteArrayList listed;
    for (const ManualTerm &term : preferencesPage().terms)
        listed.append(term.name);
    QByteArrayList preferences;
    for (const EditablePreference &row : editablePreferences())
        preferences.append(QByteArray(row.name.data(), row.name.size()));
    EXPECT_EQ(listed, preferences);
}

TEST_F(ManualPagesTest, EveryPageIsAManPage)
{
    QStringList expected;
    for (const ManualPage *const page : manualPages()) {
        for (const char *const language : {"", "de/", "fr/"})
            expected.append(manFile(*page, language));
    }
    QStringList written;
    for (QDirIterator file(QStringLiteral(SHARE_FOLDER "/man"), QDir::Files, QDirIterator::Subdirectories);
         file.hasNext();)
        written.append(file.next());
    EXPECT_THAT(written, UnorderedElementsAreArray(expected));
}

TEST_F(ManualPagesTest, AManPageHasEveryOptionAndExitStatus)
{
    for (const ManualPage *const page : manualPages()) {
        const QByteArray text = readFile(manFile(*page)).replace("\\-", "-");
        for (const ManualOption &option : page->options)
            EXPECT_TRUE(text.contains(QByteArray("\\fB--") + option.name + "\\fR")) << option.name;
        for (const ManualExitStatus &row : page->exitStatuses)
            EXPECT_TRUE(text.contains("\\fB" + QByteArray::number(row.status) + "\\fR\n"));
    }
}

TEST_F(ManualPagesTest, AManPageRefersToPagesThatThereAre)
{
    QByteArrayList names;
    for (const ManualPage *const page : manualPages())
        names.append(page->pageName() + '(' + QByteArray::number(page->section) + ')');
    for (const ManualPage *const page : manualPages()) {
        for (const QByteArray name : page->seeAlso) {
            if (name.startsWith("quillbay")) {
                EXPECT_TRUE(names.contains(name)) << name.constData();
            }
        }
    }
}

TEST_F(ManualPagesTest, ManPagesAreWellFormed)
{
    SKIP_WITHOUT_PACKAGE(!QStandardPaths::findExecutable(QStringLiteral("mandoc")).isEmpty(), "mandoc");
    QByteArrayList words{"-Tlint", "-Wall"};
    for (const ManualPage *const page : manualPages())
        words.append(QFile::encodeName(manFile(*page)));
    EXPECT_EQ(ChildProcess(QStringLiteral("mandoc")).run(words).output, QByteArray());
}

TEST_F(ManualPagesTest, ManShowsThemWithoutAWarningInEveryLanguage)
{
    SKIP_WITHOUT_PACKAGE(!QStandardPaths::findExecutable(QStringLiteral("man")).isEmpty(), "man-db");
    const std::vector<std::pair<const char *, const char *>> titles{
        {"", "\nEXIT STATUS\n"}, {"de/", "\nRÜCKGABEWERT\n"}, {"fr/", "\nCODE DE RETOUR\n"}};
    for (const auto &[language, title] : titles) {
        ChildProcess man(QStringLiteral("man"));
        const ChildProcess::Outcome outcome =
            man.withVariable("MANWIDTH", "80")
                .withVariable("LC_ALL", "C.UTF-8") // man warns of a locale that is not installed
                .run({"--warnings", "-E", "UTF-8", "-l", QFile::encodeName(manFile(countPage(), language))});
        EXPECT_EQ(outcome.errors, QByteArray());
        EXPECT_THAT(outcome.output.toStdString(), StartsWith("QUILLBAY-COUNT(1)"));
        EXPECT_TRUE(outcome.output.contains(title)) << outcome.output.constData();
    }
}
