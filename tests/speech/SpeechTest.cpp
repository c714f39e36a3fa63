// SPDX-License-Identifier: MIT
#include "speech/ApplicationExtension.h"

#include "tests/harness/QuillbayTest.h"
#include "tests/platform/views/FakeDesktop.h"

#include <QFile>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SpeechTest : public QuillbayTest {
protected:
    [[nodiscard]] static QString program(const QByteArray &body)
    {
        const QString path = writeFile(QStringLiteral("say"), "#!/bin/sh\n" + body);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }
    [[nodiscard]] QString noting() const
    {
        return program("printf '%s:%s\\n' \"$#\" \"$1\" >> '" + QFile::encodeName(m_notes) + "'\n");
    }
    [[nodiscard]] QString firstNote() const
    {
        EXPECT_TRUE(waitUntil([this] { return QFile::exists(m_notes) && readFile(m_notes).endsWith('\n'); }));
        return QString::fromUtf8(readFile(m_notes)).section(u'\n', 0, 0);
    }

    FakeDesktop m_desktop;
    const QString m_notes = world().root() + QStringLiteral("/notes");
};

TEST_F(SpeechTest, UsesTheSystemsCommand)
{
    EXPECT_EQ(QBYExtension::speechLaunchPath(), QStringLiteral("/usr/bin/say"));
}

TEST_F(SpeechTest, ACountIsSpelledOutAsOneArgument)
{
    EXPECT_TRUE(QBYExtension::sayWordCountOutloud(250, m_desktop, noting()));
    EXPECT_EQ(firstNote(), QStringLiteral("1:two hundred fifty words"));
    EXPECT_THAT(m_desktop.notes, IsEmpty());
}

TEST_F(SpeechTest, OneIsPlural)
{
    EXPECT_TRUE(QBYExtension::sayWordCountOutloud(1, m_desktop, noting()));
    EXPECT_EQ(firstNote(), QStringLiteral("1:one words"));
}

TEST_F(SpeechTest, ACountTooLargeToSpellOutIsSpokenInDigits)
{
    EXPECT_TRUE(QBYExtension::sayWordCountOutloud(UINT64_MAX, m_desktop, noting()));
    EXPECT_EQ(firstNote(), QStringLiteral("1:18446744073709551615 words"));
}

TEST_F(SpeechTest, ACountOfZeroIsNotSpoken)
{
    // A command that cannot be started would be reported.
    EXPECT_FALSE(QBYExtension::sayWordCountOutloud(0, m_desktop, QStringLiteral("/nonexistent/say")));
    EXPECT_FALSE(QBYExtension::sayStringOutloud(std::nullopt, m_desktop, QStringLiteral("/nonexistent/say")));
    EXPECT_THAT(m_desktop.notes, IsEmpty());
}

TEST_F(SpeechTest, APhraseIsNeverInterpreted)
{
    EXPECT_TRUE(
        QBYExtension::sayStringOutloud(QStringLiteral("; touch x $(touch y) -w"), m_desktop, noting()));
    EXPECT_EQ(firstNote(), QStringLiteral("1:; touch x $(touch y) -w"));
}

TEST_F(SpeechTest, ACommandThatCannotBeStartedIsReportedToTheUser)
{
    EXPECT_FALSE(QBYExtension::sayWordCountOutloud(5, m_desktop, QStringLiteral("/nonexistent/say")));
    EXPECT_THAT(m_desktop.notes,
        ElementsAre(QStringLiteral("error: /nonexistent/say cannot be started: No such file or directory")));
}

TEST_F(SpeechTest, ACommandThatFailsLaterIsIgnored)
{
    EXPECT_TRUE(QBYExtension::sayWordCountOutloud(5, m_desktop, program("exit 3\n")));
    EXPECT_THAT(m_desktop.notes, IsEmpty());
}

TEST_F(SpeechTest, ARealVoiceSpeaksIt)
{
    const QString sound = world().root() + QStringLiteral("/spoken.wav");
    const QByteArray speaker =
        program("exec " ESPEAK_NG " -w '" + QFile::encodeName(sound) + "' -- \"$1\"\n").toUtf8();
    EXPECT_TRUE(QBYExtension::sayWordCountOutloud(250, m_desktop, QString::fromUtf8(speaker)));
    // More than a second of sound: 16 bits, 22050 per second.
    EXPECT_TRUE(waitUntil([&] { return QFile(sound).size() > 44100; }));
    EXPECT_TRUE(readFile(sound).startsWith("RIFF"));
}
