// SPDX-License-Identifier: MIT
#include "tests/harness/QuillbayTest.h"

#include <QDir>

#include <sched.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class LogChannelTest : public QuillbayTest {
protected:
    RecordingLogSink m_log;
    LogChannel m_channel{QStringLiteral("com.quillbay.test"), QStringLiteral("channel")};
};

TEST_F(LogChannelTest, RecordsCarryLevelSubsystemAndCategory)
{
    m_channel.error(u"It failed");
    ASSERT_EQ(m_log.records().size(), 1U);
    const LogRecord record = m_log.records().front();
    EXPECT_EQ(record.level, LogLevel::Error);
    EXPECT_EQ(record.subsystem, QStringLiteral("com.quillbay.test"));
    EXPECT_EQ(record.category, QStringLiteral("channel"));
    EXPECT_EQ(record.message, QStringLiteral("It failed"));
}

TEST_F(LogChannelTest, TextIsPrivateUnlessMarkedPublicAndNumbersAreNot)
{
    const QString name = QStringLiteral("diary.txt");
    m_channel.info(u"{} or {}, {} times, {}", {name, publicly(name), 3, true});
    EXPECT_THAT(m_log.messages(), ElementsAre(QStringLiteral("<private> or diary.txt, 3 times, true")));
}

TEST_F(LogChannelTest, PlaceholdersInsideArgumentsAreNotReplaced)
{
    m_channel.info(u"{} and {}", {publicly(QStringLiteral("{}")), 1});
    m_channel.info(u"{} and {}", {7});
    EXPECT_THAT(m_log.messages(), ElementsAre(QStringLiteral("{} and 1"), QStringLiteral("7 and {}")));
}

TEST_F(LogChannelTest, DebugMessagesAppearOnlyIfQtsLoggingRulesEnableThem)
{
    m_channel.debug(u"unseen");
    QLoggingCategory::setFilterRules(QStringLiteral("com.quillbay.test/channel.debug=true"));
    m_channel.debug(u"seen");
    QLoggingCategory::setFilterRules({});
    EXPECT_THAT(m_log.messages(LogLevel::Debug), ElementsAre(QStringLiteral("seen")));
}

TEST_F(LogChannelTest, WithoutAJournalALineGoesToStandardErrorWithControlCharactersEscaped)
{
    if (QFile::exists(QStringLiteral("/run/systemd/journal/socket")))
        GTEST_SKIP() << "a journal listens here";
    const ChildProcess::Outcome outcome = ChildProcess(testProgram(QStringLiteral("log_writer"))).run({});
    EXPECT_EQ(outcome.errors,
        QByteArray("log_writer: [com.quillbay.test:writer] error: Cannot read <private> in a\\x0ab\n"));
}

// The journal's socket has a fixed path, so a child listens there in a mount namespace of its own.
TEST_F(LogChannelTest, WithAJournalTheRecordGoesThereInFieldsAndNotToStandardError)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root for a mount namespace";
    int channel[2];
    ASSERT_EQ(::pipe(channel), 0);
    const QByteArray writer = QFile::encodeName(testProgram(QStringLiteral("log_writer")));
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        constexpr int unsupported = 77;
        if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0
            || ::mount("tmpfs", "/run", "tmpfs", 0, nullptr) != 0)
            ::_exit(unsupported);
        ::mkdir("/run/systemd", 0755);
        ::mkdir("/run/systemd/journal", 0755);
        sockaddr_un address{AF_UNIX, "/run/systemd/journal/socket"};
        const int listener = ::socket(AF_UNIX, SOCK_DGRAM, 0);
        if (::bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
            ::_exit(unsupported);
        const pid_t grandchild = ::fork();
        if (grandchild == 0) {
            ::dup2(channel[1], STDERR_FILENO);
            ::execl(writer.constData(), "log_writer", nullptr);
            ::_exit(1);
        }
        char datagram[4096];
        const ssize_t size = ::recv(listener, datagram, sizeof datagram, 0);
        int status = 0;
        ::waitpid(grandchild, &status, 0);
        [[maybe_unused]] const ssize_t written = ::write(channel[1], datagram, static_cast<size_t>(size));
        ::_exit(WEXITSTATUS(status));
    }
    ::close(channel[1]);
    QByteArray received;
    char piece[4096];
    for (ssize_t size = 0; (size = ::read(channel[0], piece, sizeof piece)) > 0;)
        received.append(piece, size);
    ::close(channel[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (WEXITSTATUS(status) == 77)
        GTEST_SKIP() << "no mount namespaces here";
    EXPECT_EQ(WEXITSTATUS(status), 0);
    // A field with a line end in it, or none: both encodings are the journal's own.
    EXPECT_THAT(received.toStdString(), HasSubstr("PRIORITY=3\n"));
    EXPECT_THAT(received.toStdString(), HasSubstr("SUBSYSTEM=com.quillbay.test\n"));
    EXPECT_THAT(received.toStdString(), HasSubstr("CATEGORY=writer\n"));
    EXPECT_THAT(received.toStdString(), HasSubstr("Cannot read <private> in a"));
    EXPECT_THAT(received.toStdString(), Not(HasSubstr("secret")));
    EXPECT_THAT(received.toStdString(), Not(HasSubstr("log_writer: [")));
}
