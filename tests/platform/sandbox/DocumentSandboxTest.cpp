// SPDX-License-Identifier: MIT
// What a document could do that has taken over a program which reads documents: a program in the same sandbox
// tries it, on this kernel and on one without Landlock.
#include "platform/sandbox/Landlock.h"
#include "platform/system/Sanitizers.h"
#include "tests/harness/QuillbayTest.h"

#include <QDir>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr char refused[] = "ENOSYS";

struct Kind {
    const char *sandbox; ///< "worker", "thread", "reader" or "free"
    const char *missing; ///< "landlock", or empty for this kernel
};

class SandboxTest : public QuillbayTest {
protected:
    using Call = std::function<void()>;

    /// The result of each attempt, behind the description of the sandbox. before: called in the process
    /// before the program starts.
    static QByteArrayList linesOf(
        const Kind &kind, const QByteArrayList &attempts, const Call &before = [] {})
    {
        const QString program = testProgram(QStringLiteral("sandboxed_program"));
        const bool isWhole = *kind.missing == '\0';
        QByteArrayList arguments{kind.sandbox};
        if (!isWhole)
            arguments = QByteArrayList{kind.missing, QFile::encodeName(program), kind.sandbox};
        const ChildProcess::Outcome outcome =
            ChildProcess(isWhole ? program : testProgram(QStringLiteral("older_kernel")))
                .afterFork(before)
                .run(arguments + attempts);
        EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.constData();
        return outcome.output.trimmed().split('\n');
    }

    static QByteArrayList resultsIn(
        const Kind &kind, const QByteArrayList &attempts, const Call &before = [] {})
    {
        return linesOf(kind, attempts, before).sliced(1);
    }

    /// Outside of a sandbox.
    static QByteArray resultOutside(const QByteArray &attempt)
    {
        return resultsIn({"free", ""}, {attempt}).value(0);
    }

    static QByteArrayList all(const QByteArrayList &attempts, const char *result)
    {
        return {attempts.size(), result};
    }

    /// A file of the user in the home folder.
    static QByteArray document()
    {
        QFile file(world().home() + QStringLiteral("/diary.txt"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return QFile::encodeName(file.fileName());
    }
};

class DocumentSandbox : public SandboxTest, public ::testing::WithParamInterface<Kind> {
protected:
    static QByteArrayList resultsOf(
        const QByteArrayList &attempts, const Call &before = [] {})
    {
        return resultsIn(GetParam(), attempts, before);
    }

    /// Each succeeds outside, and is refused inside.
    static void expectRefused(const QByteArrayList &attempts)
    {
        EXPECT_EQ(resultsIn({"free", ""}, attempts), all(attempts, "done"));
        EXPECT_EQ(resultsOf(attempts), all(attempts, refused));
    }
    /// Each is refused inside; outside, it needs more than the test has, or too much happens.
    static void expectRefusedUntried(const QByteArrayList &attempts)
    {
        EXPECT_EQ(resultsOf(attempts), all(attempts, refused));
    }

    [[nodiscard]] static bool hasLandlock()
    {
        return *GetParam().missing == '\0' && Landlock::kernelVersion() > 0;
    }
};

std::string nameOf(const ::testing::TestParamInfo<Kind> &kind)
{
    return std::string(kind.param.sandbox) + (*kind.param.missing == '\0' ? "" : "WithoutLandlock");
}

INSTANTIATE_TEST_SUITE_P(Of, DocumentSandbox,
    ::testing::Values(Kind{"worker", ""}, Kind{"thread", ""}, Kind{"reader", ""}, Kind{"worker", "landlock"},
        Kind{"thread", "landlock"}, Kind{"reader", "landlock"}),
    nameOf);

} // namespace

TEST_P(DocumentSandbox, ReadsNoFileOfTheUser)
{
    const QByteArray parent = QByteArray::number(::getpid());
    const QByteArrayList attempts{"read=" + document(), "read=/etc/passwd", "read=/proc/self/environ",
        "read=/proc/self/mem", "read=/proc/" + parent + "/environ", "read=/proc/" + parent + "/maps",
        "read=/dev/null", "read=" + QFile::encodeName(world().home())};
    EXPECT_EQ(resultsIn({"free", ""}, attempts), all(attempts, "done"));
    // A worker may open fonts where Landlock keeps it from other files.
    const bool mayOpen = hasLandlock() && QByteArray(GetParam().sandbox) != "reader";
    EXPECT_EQ(resultsOf(attempts), all(attempts, mayOpen ? "EACCES" : refused));
}

TEST_P(DocumentSandbox, LearnsNothingAboutFiles)
{
    const QByteArray file = document();
    expectRefused(
        {"stat=" + file, "access=" + file, "path=" + file, "list=/", "list=/proc", "list=/usr/share/fonts"});
}

TEST_P(DocumentSandbox, ChangesNoFile)
{
    const QByteArray file = document();
    expectRefused({"write=" + file, "append=" + file, "mode-3=" + file, "chmod=" + file, "rename=" + file,
        "truncate=" + file, "temporary=" + QFile::encodeName(world().home())});
    expectRefusedUntried({"create=" + file + "-new", "mkdir=" + file + "-new", "symlink=" + file + "-new",
        "unlink=" + file, "setxattrat=" + file, "removexattrat=" + file, "file-setattr=" + file,
        "create=/tmp/quillbay-test-file", "memory-file"});
    EXPECT_EQ(resultOutside("create=" + file + "-new"), "done");
    EXPECT_EQ(resultOutside("mkdir=" + file + "-folder"), "done");
    EXPECT_EQ(resultOutside("symlink=" + file + "-link"), "done");
    EXPECT_EQ(resultOutside("memory-file"), "done");
    EXPECT_EQ(resultOutside("unlink=" + file), "done");
}

TEST_P(DocumentSandbox, NeitherReadsNorChangesALog)
{
    const QByteArray log = writeFileOfBytes("log", "a line of another program\n");
    const auto openLog = [log] { ::dup2(::open(log.constData(), O_RDWR), STDERR_FILENO); };
    const QByteArrayList attempts{"read-errors", "chmod-errors", "truncate-errors", "write-errors", "type"};
    EXPECT_EQ(resultsOf(attempts, openLog), QByteArrayList({"EBADF", refused, refused, "EFBIG", refused}));
    EXPECT_EQ(readFile(QFile::decodeName(log)), "a line of another program\n");
    EXPECT_EQ(resultsIn({"free", ""}, attempts, openLog),
        QByteArrayList({"done", "done", "done", "done", "ENOTTY"}));
}

TEST_P(DocumentSandbox, MakesNoConnection)
{
    expectRefused({"socket=" + QByteArray::number(AF_UNIX), "socket=" + QByteArray::number(AF_INET),
        "socket=" + QByteArray::number(AF_INET6), "pair", "shared-memory", "message-queue"});
    QByteArrayList families;
    for (int family = 0; family < AF_MAX; ++family)
        families.append("socket=" + QByteArray::number(family));
    expectRefusedUntried(families);
}

TEST_P(DocumentSandbox, ReachesNoSessionBus)
{
    QByteArray path = SessionBus::start().toLocal8Bit();
    path = path.mid(path.indexOf('/'));
    expectRefused({"connect=" + path.left(path.indexOf(','))});
}

TEST_P(DocumentSandbox, StartsNoProgramProcessOrThread)
{
    expectRefused({"fork", "vfork", "clone3", "thread"});
    expectRefusedUntried({"exec=/bin/true", "child-in-user-namespace", "user-namespace"});
}

TEST_P(DocumentSandbox, TouchesNoOtherProcess)
{
    expectRefused({"kill", "kill-thread", "process-file", "priority", "scheduler", "affinity",
        "disk-priority", "limits-of-other", "owner-of-signals", "kind-of-signals"});
    expectRefusedUntried({"trace", "read-memory", "kill-all", "signals"});
}

TEST_P(DocumentSandbox, ReachesNoPrivilegedPartOfTheKernel)
{
    expectRefusedUntried({"io-uring", "bpf", "keys", "performance", "page-faults", "dumpable"});
}

TEST_P(DocumentSandbox, ExecutesNoMemory)
{
    expectRefused({"executable", "make-executable"});
}

TEST_P(DocumentSandbox, RaisesNoLimit)
{
    const auto limitMemory = [] {
        constexpr rlim_t gibibyte = rlim_t{1} << 30;
        const rlimit some{8 * gibibyte, RLIM_INFINITY};
        ::setrlimit(RLIMIT_AS, &some);
    };
    const QByteArrayList attempts{"raise-memory", "raise-time", "raise-file-size", "more-memory"};
    if (isSanitized)
        return; // it needs more memory than that
    EXPECT_EQ(resultsOf(attempts, limitMemory), QByteArrayList({refused, refused, refused, "ENOMEM"}));
    EXPECT_EQ(resultsIn({"free", ""}, attempts, limitMemory), all(attempts, "done"));
}

TEST_P(DocumentSandbox, MakesNoCallThatIsNotListed)
{
    EXPECT_EQ(resultsOf({"unlisted-calls"}), QByteArrayList());
}

TEST_P(DocumentSandbox, ReportsItsParts)
{
    const QByteArray landlock = hasLandlock() ? "Landlock " + QByteArray::number(Landlock::kernelVersion())
                                              : "no Landlock in this kernel";
    EXPECT_EQ(linesOf(GetParam(), {}),
        QByteArrayList({"no new privileges, " + landlock + ", a system call filter"}));
}

TEST_F(SandboxTest, TheUsersOwnFontsCanBeRead)
{
    if (Landlock::kernelVersion() == 0)
        GTEST_SKIP() << "this kernel has no Landlock";
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
    EXPECT_EQ(resultsIn({"worker", ""},
                  {"read=/usr/share/fonts", "read=" + QFile::encodeName(fonts) + "/linked.ttf"}),
        QByteArrayList({"done", "done"}));
}

TEST_F(SandboxTest, AWorkerCountsTheSameLinesInEverySandbox)
{
    const QByteArray lines = resultOutside("count");
    EXPECT_GT(lines.toInt(), 10);
    EXPECT_EQ(resultsIn({"worker", ""}, {"count"}), QByteArrayList({lines}));
    EXPECT_EQ(resultsIn({"worker", "landlock"}, {"count"}), QByteArrayList({lines}));
}

TEST_F(SandboxTest, WithoutAFilterOfSystemCallsTheReportSaysSo)
{
    const QByteArray landlock = QByteArray::number(Landlock::kernelVersion());
    for (const char *kind : {"worker", "reader"}) {
        EXPECT_EQ(linesOf({kind, "seccomp"}, {}),
            QByteArrayList(
                {"no new privileges, Landlock " + landlock + ", no system call filter in this kernel"}));
        EXPECT_EQ(linesOf({kind, "both"}, {}),
            QByteArrayList(
                {"no new privileges, no Landlock in this kernel, no system call filter in this kernel"}));
    }
}
