// SPDX-License-Identifier: MIT
// The program say, with speech programs that record their arguments.
#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QFile>

class SayTest : public QuillbayTest {
protected:
    SayTest() { QDir().mkpath(m_folder); }

    /// Installs a speech program that records its name and arguments and exits with that status.
    void install(const char *name, int status = 0) const
    {
        QFile file(m_folder + QString::fromLatin1(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\nprintf '%s' \"" + QByteArray(name) + "\" >> '" + QFile::encodeName(m_notes)
            + "'\nfor a; do printf ' <%s>' \"$a\"; done >> '" + QFile::encodeName(m_notes) + "'\necho >> '"
            + QFile::encodeName(m_notes) + "'\nexit " + QByteArray::number(status) + '\n');
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    [[nodiscard]] ChildProcess::Outcome say(const QByteArrayList &arguments) const
    {
        ChildProcess program(productProgram(QStringLiteral("say")));
        program.withVariable("PATH", QFile::encodeName(m_folder));
        return program.run(arguments);
    }
    [[nodiscard]] QByteArray notes() const
    {
        return QFile::exists(m_notes) ? readFile(m_notes) : QByteArray();
    }

    const QString m_folder = world().root() + QStringLiteral("/path/");
    const QString m_notes = world().root() + QStringLiteral("/notes");
};

TEST_F(SayTest, UsesTheDispatcherIfItRuns)
{
    install("spd-say");
    install("espeak-ng");
    EXPECT_EQ(say({"-5 words"}).exitStatus, 0);
    EXPECT_EQ(notes(), "spd-say <--> <-5 words>\n");
}

TEST_F(SayTest, UsesEspeakWithoutADispatcher)
{
    install("espeak-ng");
    EXPECT_EQ(say({"two words"}).exitStatus, 0);
    EXPECT_EQ(notes(), "espeak-ng <--> <two words>\n");
}

TEST_F(SayTest, UsesEspeakIfTheDispatcherDoesNotRun)
{
    install("spd-say", 1);
    install("espeak-ng");
    EXPECT_EQ(say({"two words"}).exitStatus, 0);
    EXPECT_EQ(notes(), "spd-say <--> <two words>\nespeak-ng <--> <two words>\n");
}

TEST_F(SayTest, TheErrorNamesTheRemedyIfThereIsNeither)
{
    const ChildProcess::Outcome outcome = say({"two words"});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_THAT(outcome.errors.toStdString(), ::testing::HasSubstr("install the package espeak-ng"));
    EXPECT_EQ(outcome.output, "");
}

TEST_F(SayTest, TakesExactlyOnePhrase)
{
    install("spd-say");
    for (const QByteArrayList &arguments : {QByteArrayList{}, QByteArrayList{"two", "words"}}) {
        const ChildProcess::Outcome outcome = say(arguments);
        EXPECT_EQ(outcome.exitStatus, 2);
        EXPECT_EQ(outcome.errors, "usage: say PHRASE\n");
    }
    EXPECT_EQ(notes(), "");
}

TEST_F(SayTest, AnEmptyPhraseIsAPhrase)
{
    install("spd-say");
    EXPECT_EQ(say({""}).exitStatus, 0);
    EXPECT_EQ(notes(), "spd-say <--> <>\n");
}
