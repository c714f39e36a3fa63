// SPDX-License-Identifier: MIT
// What the programs that touch documents may do in their sandboxes, tried by a program in the same sandboxes.
#include "platform/sandbox/Landlock.h"
#include "tests/harness/QuillbayTest.h"

#include <QDir>

#include <sys/stat.h>

namespace {

class SandboxTest : public QuillbayTest {
protected:
    /// The result of each attempt in a sandbox of this kind, without the description of the sandbox.
    static QByteArrayList resultsIn(const QByteArray &kind, const QByteArrayList &attempts)
    {
        const ChildProcess::Outcome outcome = ChildProcess(testProgram(QStringLiteral("sandboxed_program")))
                                                  .run(QByteArrayList{kind} + attempts);
        EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.constData();
        return outcome.output.trimmed().split('\n').sliced(1);
    }

    static QByteArray resultIn(const QByteArray &kind, const QByteArray &attempt)
    {
        return resultsIn(kind, {attempt}).value(0);
    }
    static QByteArray resultOutside(const QByteArray &attempt) { return resultIn("free", attempt); }

    /// A file of the user in the home folder.
    static QByteArray document()
    {
        QFile file(world().home() + QStringLiteral("/diary.txt"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return QFile::encodeName(file.fileName());
    }
};

/// The tests for every sandbox.
class DocumentSandbox : public SandboxTest, public ::testing::WithParamInterface<const char *> {
protected:
    static QByteArray resultOf(const QByteArray &attempt) { return resultIn(GetParam(), attempt); }
};
INSTANTIATE_TEST_SUITE_P(Of, DocumentSandbox, ::testing::Values("counting", "pdf"),
    [](const auto &kind) { return std::string(kind.param); });

class WorkerSandbox : public SandboxTest { };
class PdfReaderSandbox : public SandboxTest { };

constexpr char refused[] = "EPERM";

} // namespace

TEST_P(DocumentSandbox, ReadsNoFileOfTheUser)
{
    if (Landlock::kernelVersion() == 0)
        GTEST_SKIP() << "this kernel has no Landlock";
    const QByteArray file = "read=" + document();
    EXPECT_EQ(resultOutside(file), "done");
    EXPECT_EQ(resultOf(file), "EACCES");
    EXPECT_EQ(resultOf("read=/etc/passwd"), "EACCES");
    EXPECT_EQ(resultOf("list=" + QFile::encodeName(world().home())), "EACCES");
    EXPECT_EQ(resultOf("list=/"), "EACCES");
    EXPECT_EQ(resultOf("read=/proc/self/environ"), "EACCES");
}

TEST_F(WorkerSandbox, ReadsFontsTheUsersOwnAmongThem)
{
    const QString fonts = world().data() + QStringLiteral("/fonts");
    QDir().mkpath(fonts);
    const QString elsewhere = writeFile(QStringLiteral("elsewhere.ttf"), "a font");
    ASSERT_TRUE(QFile::link(elsewhere, fonts + QStringLiteral("/linked.ttf")));
    QFile configuration(world().root() + QStringLiteral("/fonts/fonts.conf"));
    ASSERT_TRUE(configuration.open(QIODevice::WriteOnly));
    configuration.write(
        "<?xml version=\"1.0\"?><fontconfig><dir>/usr/share/fonts</dir><dir prefix=\"xdg\">fonts</dir>"
        "</fontconfig>");
    configuration.close();
    EXPECT_EQ(resultsIn("counting",
                  {"list=/usr/share/fonts", "list=" + QFile::encodeName(fonts),
                      "read=" + QFile::encodeName(fonts) + "/linked.ttf",
                      "read=" + QFile::encodeName(configuration.fileName())}),
        QByteArrayList({"done", "done", "done", "done"}));
}

TEST_P(DocumentSandbox, ChangesNoFile)
{
    const QByteArray file = document();
    for (const char *attempt : {"write", "append", "truncate", "rename", "unlink", "chmod"})
        EXPECT_EQ(resultOf(QByteArray(attempt) + '=' + file), refused) << attempt;
    for (const char *attempt : {"create", "mkdir"}) {
        EXPECT_EQ(resultOf(QByteArray(attempt) + '=' + file + "-new"), refused) << attempt;
        EXPECT_EQ(resultOutside(QByteArray(attempt) + '=' + file + '-' + attempt), "done") << attempt;
    }
    EXPECT_EQ(resultOf("create=/tmp/quillbay-test-file"), refused);
    EXPECT_EQ(resultOutside("append=" + file), "done");
}

TEST_P(DocumentSandbox, MakesNoConnection)
{
    for (const char *attempt : {"tcp", "unix", "pair"}) {
        EXPECT_EQ(resultOf(attempt), refused) << attempt;
        EXPECT_EQ(resultOutside(attempt), "done") << attempt;
    }
}

TEST_P(DocumentSandbox, StartsNoProgramAndNoProcess)
{
    EXPECT_EQ(resultOf("exec=/bin/true"), refused);
    EXPECT_EQ(resultOf("fork"), refused);
    EXPECT_EQ(resultOf("vfork"), refused);
    EXPECT_EQ(resultOf("clone3"), "ENOSYS");
    EXPECT_EQ(resultOutside("fork"), "done");
}

TEST_F(PdfReaderSandbox, ReadsTheFontsOfTheMachineAndNotTheUsers)
{
    if (Landlock::kernelVersion() == 0)
        GTEST_SKIP() << "this kernel has no Landlock";
    const QString fonts = world().data() + QStringLiteral("/fonts");
    QDir().mkpath(fonts);
    EXPECT_EQ(resultIn("pdf", "list=/usr/share/fonts"), "done");
    EXPECT_EQ(resultIn("pdf", "list=" + QFile::encodeName(fonts)), "EACCES");
}

TEST_F(WorkerSandbox, StartsThreads)
{
    EXPECT_EQ(resultIn("counting", "thread"), "done");
}

TEST_P(DocumentSandbox, TouchesNoOtherProcess)
{
    EXPECT_EQ(resultOf("kill-parent"), refused);
    EXPECT_EQ(resultOf("kill-self"), "done");
    EXPECT_EQ(resultOf("trace-parent"), refused);
    EXPECT_EQ(resultOutside("kill-parent"), "done");
}

TEST_P(DocumentSandbox, AsksForNothingPrivileged)
{
    for (const char *attempt : {"unshare", "io-uring", "bpf", "keys", "lift-limit"})
        EXPECT_EQ(resultOf(attempt), refused) << attempt;
}

TEST_F(WorkerSandbox, CountsWithTheFontsOfTheMachine)
{
    const QByteArray lines = resultIn("counting", "count");
    EXPECT_EQ(lines, resultOutside("count"));
    EXPECT_GT(lines.toInt(), 10);
}

TEST_P(DocumentSandbox, ReportsItsParts)
{
    const QByteArray said =
        ChildProcess(testProgram(QStringLiteral("sandboxed_program"))).run({GetParam()}).output.trimmed();
    const int version = Landlock::kernelVersion();
    const QByteArray landlock =
        version ? "Landlock " + QByteArray::number(version) : "no Landlock in this kernel";
    EXPECT_EQ(said, "no new privileges, " + landlock + ", a system call filter");
}
