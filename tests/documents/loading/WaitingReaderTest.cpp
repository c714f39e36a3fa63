// SPDX-License-Identifier: MIT
// The program that waits for the next document.
#include "documents/loading/SandboxedReader.h"
#include "tests/documents/loading/ReaderPrograms.h"
#include "tests/harness/QuillbayTest.h"

#include <fcntl.h>

#include <csignal>
#include <future>

namespace {

using Text = Result<AttributedString, DocumentError>;

class WaitingReader : public QuillbayTest {
protected:
    static Text readIn(SandboxedReader &reader)
    {
        return reader.read(DocumentKind::Rtf, "{\\rtf1 some text}");
    }

    static std::vector<int> openDescriptors()
    {
        std::vector<int> open;
        for (int descriptor = 0; descriptor < 1'000; ++descriptor) {
            if (::fcntl(descriptor, F_GETFD) >= 0)
                open.push_back(descriptor);
        }
        return open;
    }

    [[nodiscard]] std::vector<pid_t> children() const { return childrenOf(::getpid(), m_others); }
    [[nodiscard]] pid_t confinedChild(pid_t except = 0) const
    {
        std::vector<pid_t> others = m_others;
        others.push_back(except);
        return confinedReader(::getpid(), others);
    }
    /// Whether there is one child, which is not a zombie.
    [[nodiscard]] bool hasOneReader() const
    {
        return waitUntil([this] {
            const std::vector<pid_t> children = this->children();
            return children.size() == 1 && !statusOf(children.front(), "State").startsWith('Z');
        });
    }

private:
    const std::vector<pid_t> m_others = childrenOf(); // the shared reader's, after another test
};

} // namespace

TEST_F(WaitingReader, IsConfinedBeforeItHasADocument)
{
    SandboxedReader reader;
    EXPECT_TRUE(children().empty());
    reader.prepare();
    const pid_t process = confinedChild();
    ASSERT_NE(process, 0);
    EXPECT_EQ(statusOf(process, "NoNewPrivs"), "1");
    EXPECT_EQ(statusOf(process, "Name"), "quillbay-docume");
    EXPECT_EQ(statusOf(process, "Threads"), "1");
    const QByteArray limits = procFile(process, "limits").simplified();
    EXPECT_TRUE(limits.contains("Max file size 0 0")) << limits.constData();
    EXPECT_TRUE(limits.contains("Max processes 0 0"));
    EXPECT_TRUE(limits.contains("Max core file size 0 0"));
}

TEST_F(WaitingReader, TakesTheNextDocumentAndIsReplaced)
{
    SandboxedReader reader;
    reader.prepare();
    const pid_t first = confinedChild();
    ASSERT_NE(first, 0);
    ASSERT_EQ(::kill(first, SIGSTOP), 0);
    std::future<Text> reading = std::async(std::launch::async, [&reader] { return readIn(reader); });
    // It has been chosen, as it has a limit now.
    EXPECT_TRUE(waitUntil(
        [first] { return !procFile(first, "limits").simplified().contains("Max cpu time unlimited"); }));
    ASSERT_EQ(::kill(first, SIGCONT), 0);
    EXPECT_EQ(reading.get().value().string(), QStringLiteral("some text"));
    EXPECT_TRUE(waitUntilEnded(first));
    EXPECT_NE(confinedChild(first), 0);
    EXPECT_TRUE(hasOneReader());
}

TEST_F(WaitingReader, ThatIsKilledIsReapedAndReplaced)
{
    SandboxedReader reader;
    reader.prepare();
    const pid_t first = confinedChild();
    ASSERT_NE(first, 0);
    ASSERT_EQ(::kill(first, SIGKILL), 0);
    EXPECT_NE(confinedChild(first), 0);
    EXPECT_TRUE(hasOneReader());
    EXPECT_TRUE(readIn(reader));
}

TEST_F(WaitingReader, ThatIsKilledJustBeforeADocumentIsNotMissed)
{
    SandboxedReader reader;
    for (int round = 0; round < 20; ++round) {
        reader.prepare();
        for (const pid_t process : children())
            ::kill(process, SIGKILL);
        EXPECT_TRUE(readIn(reader)) << round;
    }
}

TEST_F(WaitingReader, ThatDoesNotStartIsNotStartedAgainAndAgain)
{
    const QString log = world().root() + QStringLiteral("/starts");
    const QString program = writeFile(
        QStringLiteral("reader"), "#!/bin/sh\necho start >>'" + QFile::encodeName(log) + "'\nexit 1\n");
    ASSERT_TRUE(QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    {
        SandboxedReader reader(QFile::encodeName(program));
        reader.prepare();
        EXPECT_TRUE(waitUntil([&] { return QFile::exists(log); }));
        EXPECT_TRUE(waitUntil([this] { return children().empty(); }));
        EXPECT_EQ(readIn(reader).error().cause, DocumentError::Cause::NoReader);
    }
    EXPECT_LE(readFile(log).count("start"), 5);
}

TEST_F(WaitingReader, EndsWithItsOwner)
{
    const std::vector<int> before = openDescriptors();
    {
        SandboxedReader reader;
        EXPECT_TRUE(readIn(reader));
        EXPECT_FALSE(reader.read(DocumentKind::Rtf, "no RTF"));
        EXPECT_TRUE(hasOneReader());
    }
    EXPECT_TRUE(children().empty());
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(WaitingReader, EndsWithItsProgram)
{
    const QByteArray file = QFile::encodeName(writeFile(QStringLiteral("a.rtf"), "{\\rtf1 some text}"));
    ChildProcess program(testProgram(QStringLiteral("load_document")));
    program.start({file, "wait"});
    const pid_t reader = confinedReader(program.processIdentifier());
    ASSERT_NE(reader, 0);
    program.kill();
    EXPECT_TRUE(waitUntilEnded(reader));
}
