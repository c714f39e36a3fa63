// SPDX-License-Identifier: MIT
// What is reported to a presenter about saves of real programs. docs/watching.md has the table that these
// tests print.
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/platform/file_coordination/RecordingPresenter.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <cstdio>

using namespace std::chrono_literals;

namespace {

struct Save {
    const char *program; ///< that must be there, besides a shell
    const char *mode;
    /// Shell commands in the folder of the document, f.txt; they leave "after" somewhere in it.
    const char *commands;
    int maxChanges = 1; ///< more where it is several saves
};

// Types the keys after the last pattern once the terminal's screen has shown each pattern.
constexpr char terminal[] = R"(
import fcntl, os, pty, select, struct, sys, termios
pid, screen = pty.fork()
if pid == 0:
    os.environ['TERM'] = 'vt100'
    fcntl.ioctl(1, termios.TIOCSWINSZ, struct.pack('4H', 24, 80, 0, 0))
    os.execvp(sys.argv[1], [sys.argv[1], 'f.txt'])
for step in sys.argv[2:]:
    pattern, keys = step.encode().split(b'=', 1)
    seen = b''
    while pattern not in seen:
        if not select.select([screen], [], [], 20)[0]: sys.exit('no ' + step)
        seen += os.read(screen, 4096)
    os.write(screen, keys)
os.waitpid(pid, 0)
)";

const Save saves[] = {
    {"vim", "backupcopy=auto", "$VIM_PROGRAM -u NONE -i NONE -N -es -c 's/before/after/' -c wq f.txt"},
    {"vim", "backupcopy=no",
        "$VIM_PROGRAM -u NONE -i NONE -N -es -c 'set backupcopy=no' -c 's/before/after/' -c wq f.txt"},
    {"vim", "backupcopy=yes",
        "$VIM_PROGRAM -u NONE -i NONE -N -es -c 'set backupcopy=yes' -c 's/before/after/' -c wq f.txt"},
    {"vim", "backup kept",
        "$VIM_PROGRAM -u NONE -i NONE -N -es -c 'set backup backupcopy=no' -c 's/before/after/' -c wq f.txt"},
    {"vim", "two saves",
        "$VIM_PROGRAM -u NONE -i NONE -N -es -c 'set backupcopy=no' -c 's/before/between/' -c w -c "
        "'s/between/after/' "
        "-c wq f.txt",
        2},
    {"emacs", "first save",
        "emacs -Q --batch f.txt --eval '(progn (erase-buffer) (insert \"after\") (save-buffer))'"},
    {"emacs", "two saves",
        "emacs -Q --batch f.txt --eval '(progn (erase-buffer) (save-buffer) (insert \"after\") "
        "(save-buffer))'",
        2},
    {"emacs", "backup-by-copying",
        "emacs -Q --batch f.txt --eval '(progn (setq backup-by-copying t) (erase-buffer) (insert \"after\") "
        "(save-buffer))'"},
    {"nano", "^O ^X",
        "/usr/bin/python3 -c \"$TERMINAL\" nano 'f.txt=after ' '*=\017' 'File Name=\r' 'Wrote=\030'"},
    {"nano", "^X with a backup",
        "printf 'set backup\\n' > $HOME/.nanorc; "
        "/usr/bin/python3 -c \"$TERMINAL\" nano 'f.txt=after ' '*=\030' 'Save=y' 'File Name=\r'"},
    {"ed", "w", "printf 's/before/after/\\nw\\nq\\n' | ed -s f.txt"},
    {"sed", "-i", "sed -i s/before/after/ f.txt"},
    {"sed", "-i.bak", "sed -i.bak s/before/after/ f.txt"},
    {"perl", "-i", "perl -i -pe s/before/after/ f.txt"},
    {"perl", "-i.bak", "perl -i.bak -pe s/before/after/ f.txt"},
    {"cp", "over it", "echo after > g; cp g f.txt"},
    {"cp", "-p", "echo after > g; cp -p g f.txt"},
    {"cp", "--remove-destination", "echo after > g; cp --remove-destination g f.txt"},
    {"mv", "over it", "echo after > g; mv g f.txt"},
    {"mv", "with a backup", "echo after > g; mv -b g f.txt"},
    {"mv", "from another file system", "g=$(mktemp -p /dev/shm); echo after > $g; mv $g f.txt"},
    {"rsync", "", "echo after and more > g; rsync g f.txt"},
    {"rsync", "-t", "echo after and more > g; rsync -t g f.txt"},
    {"rsync", "--inplace", "echo after and more > g; rsync --inplace g f.txt"},
    {"rsync", "--inplace -t", "echo after and more > g; rsync --inplace -t g f.txt"},
    {"git", "checkout", "git checkout -q other"},
    {"git", "checkout of the file", "git checkout -q other -- f.txt"},
    {"git", "stash", "git checkout -q other; echo more >> f.txt; git stash -q", 3},
    {"dd", "", "echo after | dd of=f.txt status=none"},
    {"dd", "conv=notrunc", "echo after | dd of=f.txt conv=notrunc status=none"},
    {"dd", "bs=1", "echo after | dd of=f.txt bs=1 status=none"},
    {"tee", "", "echo after | tee f.txt >/dev/null"},
    {"tee", "-a", "echo after | tee -a f.txt >/dev/null"},
    {"sh", ">", "echo after > f.txt"},
    {"sh", ">>", "echo after >> f.txt"},
    {"install", "", "echo after > g; install g f.txt"},
    {"patch", "", "printf '1c1\\n< before\\n---\\n> after\\n' | patch -s f.txt"},
    {"python3", "write", "python3 -c 'open(\"f.txt\", \"w\").write(\"after\")'"},
    {"python3", "os.replace",
        "python3 -c 'import os; open(\"g\", \"w\").write(\"after\"); os.replace(\"g\", \"f.txt\")'"},
    {"QSaveFile", "", "printf 'QSaveFile after:1 0\\n' | $FILE_SAVER f.txt"},
    {"gio", "save", "echo after | gio save f.txt"},
    {"gio", "save --backup", "echo after | gio save --backup f.txt"},
    {"g_file_set_contents", "",
        "/usr/bin/python3 -c 'from gi.repository import GLib; GLib.file_set_contents(\"f.txt\", "
        "b\"after\")'"},
};

std::string nameOf(const ::testing::TestParamInfo<Save> &info)
{
    std::string name;
    for (const char character : std::string(info.param.program) + "_" + info.param.mode)
        name += std::isalnum(static_cast<unsigned char>(character)) ? character : '_';
    return name + "_" + std::to_string(info.index);
}

/// The small one if the full one is not installed.
QString vimProgram()
{
    const QString full = QStandardPaths::findExecutable(QStringLiteral("vim"));
    return full.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("vim.tiny")) : full;
}

/// Empty if nothing is missing.
QString missingFor(const QString &program)
{
    if (program == QStringLiteral("g_file_set_contents")) {
        const ChildProcess::Outcome outcome =
            ChildProcess(QStringLiteral("/usr/bin/python3")).run({"-c", "from gi.repository import GLib"});
        return outcome.exitStatus == 0 ? QString() : QStringLiteral("python3-gi");
    }
    if (program == QStringLiteral("QSaveFile"))
        return {};
    if (program == QStringLiteral("vim"))
        return vimProgram().isEmpty() ? program : QString();
    return QStandardPaths::findExecutable(program).isEmpty() ? program : QString();
}

} // namespace

class RealProgramsTest : public QuillbayTest, public ::testing::WithParamInterface<Save> {
protected:
    RealProgramsTest()
    {
        m_process.setWorkingDirectory(QFileInfo(m_path).path());
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TERMINAL"), QString::fromLatin1(terminal));
        environment.insert(QStringLiteral("VIM_PROGRAM"), vimProgram());
        environment.insert(QStringLiteral("FILE_SAVER"), testProgram(QStringLiteral("file_saver")));
        environment.insert(QStringLiteral("GIT_CONFIG_GLOBAL"), QStringLiteral("/dev/null"));
        m_process.setProcessEnvironment(environment);
    }

    bool run(const QString &commands)
    {
        m_process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-ec"), commands});
        return m_process.waitForFinished(60'000) && m_process.exitCode() == 0;
    }
    /// The fake clock runs with the real one meanwhile.
    void runWatched(const QString &commands)
    {
        QElapsedTimer timer;
        timer.start();
        m_process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-ec"), commands});
        // Without a pause, as the clock must not be late when an event arrives.
        for (const QDeadlineTimer end(60s); m_process.state() != QProcess::NotRunning && !end.hasExpired();) {
            QCoreApplication::processEvents();
            m_clock.advance(std::chrono::milliseconds(timer.restart()));
        }
        ASSERT_EQ(m_process.state(), QProcess::NotRunning);
        ASSERT_EQ(m_process.exitCode(), 0) << m_process.readAll().toStdString();
        // Later reports, as if the program had only exited.
        for (int i = 0; i < 20; ++i) {
            QCoreApplication::processEvents();
            m_clock.advance(100ms);
        }
    }

    const QString m_path = writeFile(QStringLiteral("folder/f.txt"), "before\n");
    QProcess m_process;
    FakeClock m_clock;
    RecordingPresenter m_presenter{m_path};
};

TEST_P(RealProgramsTest, ASaveIsReportedAsAChangeOnly)
{
    const Save &save = GetParam();
    const QString missing = missingFor(QString::fromLatin1(save.program));
    SKIP_WITHOUT_PACKAGE(missing.isEmpty(), missing.toStdString());
    if (QLatin1String(save.program) == QLatin1String("git")) {
        ASSERT_TRUE(
            run(QStringLiteral("git init -q; git config user.email a@b.c; git config user.name a; git add .;"
                               "git commit -qm 1; git checkout -qb other; echo after > f.txt;"
                               "git commit -qam 2; git checkout -q -")));
    }
    FileCoordinator::addFilePresenter(&m_presenter, m_clock);
    runWatched(QString::fromLatin1(save.commands));
    const QStringList news = m_presenter.takeNews();
    std::printf("| %s | %s | %s |\n", save.program, save.mode, qPrintable(news.join(QStringLiteral(", "))));
    EXPECT_FALSE(news.isEmpty());
    EXPECT_LE(news.size(), save.maxChanges);
    for (const QString &one : news)
        EXPECT_EQ(one, QStringLiteral("changed"));
    EXPECT_TRUE(m_presenter.contents().contains("after"));
    EXPECT_EQ(m_presenter.contents(), readFile(m_path));
    // And later changes are reported too.
    writeFile(QStringLiteral("folder/f.txt"), "later");
    QCoreApplication::processEvents();
    EXPECT_EQ(m_presenter.contents(), QByteArray("later"));
}

INSTANTIATE_TEST_SUITE_P(Programs, RealProgramsTest, ::testing::ValuesIn(saves), nameOf);
