// SPDX-License-Identifier: MIT
#include "platform/system/FileURL.h"
#include "tests/command/ServiceCommandTest.h"

#include <QJsonArray>

using ::testing::HasSubstr;
using Outcome = ChildProcess::Outcome;

class TextCommand : public ServiceCommandTest { };

TEST_F(TextCommand, SendsAFileAsFlatRtfd)
{
    const Outcome outcome = quillbay({"text", file("story.txt", "\xff\xfeO\0n\0e\0.\0")});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.errors, QByteArray());
    EXPECT_EQ(request()[u"message"].toString(), QStringLiteral("wordCountSelectedTextService"));
    EXPECT_EQ(request()[u"forms"].toObject().keys(),
        QStringList({QStringLiteral("application/x-flat-rtfd"), QStringLiteral("text/uri-list")}));
    EXPECT_EQ(request()[u"files"].toArray(),
        QJsonArray{QStringLiteral("file://") + world().root() + QStringLiteral("/files/story.txt")});
    EXPECT_TRUE(request()[u"hasDefaults"].toBool());
}

TEST_F(TextCommand, StandardInputIsNoFile)
{
    EXPECT_EQ(quillbay({"text"}, "One.").exitStatus, 0);
    EXPECT_EQ(request()[u"forms"].toObject().keys(), QStringList{QStringLiteral("application/x-flat-rtfd")});
}

TEST_F(TextCommand, ReadsTheSameDocumentsAsCount)
{
    const std::vector<std::pair<QByteArray, QString>> documents{
        {"caf\xc3\xa9\n", QStringLiteral("café\n")},
        {"{\\rtf1\\ansi caf\\'e9}", QStringLiteral("café")},
        {"<!DOCTYPE html><p>caf&eacute;", QStringLiteral("café")},
    };
    for (const auto &[bytes, text] : documents) {
        EXPECT_EQ(quillbay({"text", file("document", bytes)}).exitStatus, 0);
        EXPECT_EQ(requests().last()[u"text"].toString(), text);
        EXPECT_EQ(quillbay({"text", "-"}, bytes).exitStatus, 0);
        EXPECT_EQ(requests().last()[u"text"].toString(), text);
        EXPECT_EQ(quillbay({"text"}, bytes).exitStatus, 0);
        EXPECT_EQ(requests().last()[u"text"].toString(), text);
    }
    EXPECT_EQ(requests().size(), 9);
}

TEST_F(TextCommand, OpensAWindowForAnEmptyText)
{
    EXPECT_EQ(quillbay({"text"}, "").exitStatus, 0);
    EXPECT_EQ(request()[u"text"].toString(), QString());
}

TEST_F(TextCommand, FailsLikeCount)
{
    const QByteArray folder = QFile::encodeName(world().home());
    for (const QByteArray &name :
        {QByteArray("/no/such"), folder, file("archive.docx", "PK\x03\x04nonsense")}) {
        const Outcome outcome = quillbay({"text", name});
        EXPECT_EQ(outcome.exitStatus, 1);
        EXPECT_EQ(outcome.errors, count({name}).errors);
        EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("quillbay: " + name.toStdString() + ": "));
    }
    EXPECT_EQ(requests().size(), 0);
}

TEST_F(TextCommand, ReportsTheProvidersErrorOnStandardError)
{
    installProvider("No_such_text.");
    const Outcome outcome = quillbay({"text"}, "text");
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors, QByteArray("quillbay: No_such_text.\n"));
}

TEST_F(TextCommand, SaysWhatToDoWithoutADisplay)
{
    removeProvider();
    ChildProcess command(productProgram(QStringLiteral("quillbay")));
    const Outcome outcome = command.withoutVariable("DISPLAY").run({"text"}, "text");
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors,
        QByteArray("quillbay: there is no display for the window; run this in a terminal of your desktop, "
                   "or use 'quillbay count', which needs none\n"));
}

TEST_F(TextCommand, NeedsNoDisplayOfItsOwnWhereTheProviderHasOne)
{
    ChildProcess command(productProgram(QStringLiteral("quillbay")));
    EXPECT_EQ(command.withoutVariable("DISPLAY").run({"text"}, "text").exitStatus, 0);
    EXPECT_EQ(request()[u"text"].toString(), QStringLiteral("text"));
}

TEST_F(TextCommand, SaysWhatToDoWithoutASessionBus)
{
    ChildProcess command(productProgram(QStringLiteral("quillbay")));
    const Outcome outcome =
        command.withVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nobody").run({"text"}, "text");
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors,
        QByteArray("quillbay: there is no session bus, which opens the window; log in to a desktop, "
                   "or use 'quillbay count', which needs none\n"));
}

TEST_F(TextCommand, GivesAWindowOfAPipeNoName)
{
    ChildProcess shell(QStringLiteral("/bin/bash"));
    const QByteArray program = QFile::encodeName(productProgram(QStringLiteral("quillbay")));
    EXPECT_EQ(shell.run({"-c", "'" + program + "' text <(printf One.)"}).exitStatus, 0);
    EXPECT_EQ(request()[u"text"].toString(), QStringLiteral("One."));
    EXPECT_EQ(request()[u"forms"].toObject().keys(), QStringList{QStringLiteral("application/x-flat-rtfd")});
}

TEST_F(TextCommand, OpensAWindowForEachFile)
{
    const Outcome outcome = quillbay({"text", file("first.txt", "One."),
        file("picture.png", "\x89PNG\r\n\x1a\n"), fileURLOfPath(file("last.txt", "Three.")).toEncoded()});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("picture.png: "));
    EXPECT_EQ(requests().size(), 2);
}

TEST_F(TextCommand, HasHelp)
{
    EXPECT_EQ(quillbay({"text", "--help"}).exitStatus, 0);
}
