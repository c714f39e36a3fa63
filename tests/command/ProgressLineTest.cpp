// SPDX-License-Identifier: MIT
// Progress on a real pseudo-terminal: the work takes as long as the test keeps standard input open.
#include "tests/command/CommandTest.h"

#include <csignal>
#include <fcntl.h>
#include <pty.h>
#include <unistd.h>

using ::testing::EndsWith;
using ::testing::HasSubstr;

namespace {

class ProgressLineTest : public CommandTest {
protected:
    void SetUp() override
    {
        if (::openpty(&m_terminal, &m_end, nullptr, nullptr, nullptr) != 0)
            GTEST_SKIP() << "no pseudo-terminals here";
    }
    void TearDown() override
    {
        ::close(m_terminal);
        ::close(m_end);
    }

    /// Counts standard input, which stays open.
    void startOnTerminal(ChildProcess &process, const char *type)
    {
        process.withVariable("TERM", type).afterFork([this] { ::dup2(m_end, STDERR_FILENO); });
        process.start({"count", "-"});
        process.writeLine("One two.");
    }

    QByteArray terminalOutput()
    {
        ::fcntl(m_terminal, F_SETFL, O_NONBLOCK);
        char piece[4096];
        for (ssize_t size = 0; (size = ::read(m_terminal, piece, sizeof piece)) > 0;)
            m_output.append(piece, size);
        return m_output;
    }

    int m_terminal = -1;
    int m_end = -1;
    QByteArray m_output;
};

} // namespace

TEST_F(ProgressLineTest, ShowsTheFileThatIsBeingReadAndErasesTheLineAtTheEnd)
{
    ChildProcess process(productProgram(QStringLiteral("quillbay")));
    startOnTerminal(process, "xterm");
    EXPECT_TRUE(waitUntil([this] { return terminalOutput().contains("reading standard input"); }));
    const ChildProcess::Outcome outcome = process.finish();
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("  -\n"));
    EXPECT_THAT(terminalOutput().toStdString(), EndsWith("\r\033[K"));
}

TEST_F(ProgressLineTest, WhatTheUserTypesIsNotDrawnOver)
{
    ChildProcess process(productProgram(QStringLiteral("quillbay")));
    process.withVariable("TERM", "xterm").afterFork([this] {
        ::dup2(m_end, STDIN_FILENO);
        ::dup2(m_end, STDERR_FILENO);
    });
    process.start({"count"});
    EXPECT_TRUE(waitUntil([this] { return terminalOutput().contains("Ctrl+D on an empty line ends it"); }));
    ASSERT_EQ(::write(m_terminal, "One two.\n\x04", 10), 10);
    EXPECT_EQ(process.finish().exitStatus, 0);
    EXPECT_EQ(terminalOutput().count("reading"), 1);
    EXPECT_FALSE(terminalOutput().contains('\x1B'));
}

TEST_F(ProgressLineTest, CtrlCErasesTheLineAndEndsTheCommandByItsSignal)
{
    ChildProcess process(productProgram(QStringLiteral("quillbay")));
    startOnTerminal(process, "xterm");
    EXPECT_TRUE(waitUntil([this] { return terminalOutput().contains("reading standard input"); }));
    ::kill(static_cast<pid_t>(process.processIdentifier()), SIGINT);
    EXPECT_EQ(process.finish().exitStatus, -1);
    EXPECT_THAT(terminalOutput().toStdString(), EndsWith("\r\033[K"));
}

TEST_F(ProgressLineTest, ATerminalThatCannotEraseGetsNoLine)
{
    for (const char *const type : {"dumb", ""}) {
        ChildProcess silent(productProgram(QStringLiteral("quillbay")));
        startOnTerminal(silent, type);
        // Started later on the same terminal, it shows its line later.
        ChildProcess shown(productProgram(QStringLiteral("quillbay")));
        startOnTerminal(shown, "xterm");
        EXPECT_TRUE(waitUntil([this] { return terminalOutput().contains("reading standard input"); }));
        EXPECT_EQ(shown.finish().exitStatus, 0);
        const QByteArray before = terminalOutput();
        EXPECT_EQ(silent.finish().exitStatus, 0);
        EXPECT_EQ(terminalOutput(), before);
        m_output.clear();
    }
}
