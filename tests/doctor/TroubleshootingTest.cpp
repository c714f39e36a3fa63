// SPDX-License-Identifier: MIT
// The page on troubleshooting names every check, and its commands run.
#include "doctor/Checks.h"
#include "tests/command/ServiceCommandTest.h"
#include "tests/platform/pasteboard/SelectionOwner.h"

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

QByteArray page()
{
    QFile file(QStringLiteral(TROUBLESHOOTING_PAGE));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// The lines of the blocks of shell commands.
QByteArrayList commandsOf(const QByteArray &text)
{
    QByteArrayList commands;
    bool isInBlock = false;
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith("```"))
            isInBlock = line == "```sh";
        else if (isInBlock)
            commands.append(line);
    }
    return commands;
}

class Troubleshooting : public ServiceCommandTest {
protected:
    Troubleshooting()
    {
        // It would change this machine: the program of the command exists, that is all. (sysctl is a
        // package.)
        writeProgram("sudo", "[ \"$1\" = sysctl ] || exec which \"$1\" > /dev/null");
        // Programs of other packages, which print something about this machine.
        for (const char *const name : {"lpstat", "journalctl"})
            writeProgram(name, "exit 0");
        file("story.txt", "One two three.");
    }

    /// Runs a line in a folder with a text, and with our programs.
    static ChildProcess::Outcome run(const QByteArray &line)
    {
        const QByteArray ours =
            QFile::encodeName(QFileInfo(productProgram(QStringLiteral("quillbay"))).path());
        ChildProcess shell(QStringLiteral("/bin/bash"));
        shell.inFolder(folder()).withVariable(
            "PATH", QFile::encodeName(folder()) + ':' + ours + ":/usr/sbin:" + qgetenv("PATH"));
        return shell.run({"-c", line});
    }

private:
    static QString folder() { return world().root() + QStringLiteral("/files"); }
    static void writeProgram(const char *name, const QByteArray &script)
    {
        QFile program(QFile::decodeName(file(name, "#!/bin/sh\n" + script + '\n')));
        EXPECT_TRUE(program.setPermissions(program.permissions() | QFile::ExeOwner));
    }
};

} // namespace

TEST_F(Troubleshooting, EveryCheckHasASection)
{
    for (const Check &check : allChecks())
        EXPECT_TRUE(page().contains("\n### `" + QByteArray(check.name) + "`\n")) << check.name;
    EXPECT_EQ(page().count("\n### `"), static_cast<qsizetype>(allChecks().size()));
}

TEST_F(Troubleshooting, EveryCommandRuns)
{
    const SelectionOwner selected("PRIMARY", {{"UTF8_STRING", "selected"}});
    const SelectionOwner copied("CLIPBOARD", {{"UTF8_STRING", "copied"}});
    const QByteArrayList commands = commandsOf(page());
    EXPECT_GE(commands.size(), 10);
    for (const QByteArray &command : commands) {
        const ChildProcess::Outcome outcome = run(command);
        EXPECT_THAT(outcome.errors.toStdString(), Not(HasSubstr("Try 'quillbay"))) << command.constData();
        // The service of this bus only records requests, and a container has no list of modules.
        if (command == "quillbay doctor" || command.contains("--service") || command.startsWith("cat /sys/"))
            continue;
        EXPECT_EQ(outcome.exitStatus, 0) << command.constData() << '\n' << outcome.errors.constData();
    }
    EXPECT_EQ(requests().size(), 3); // of the doctor, the clipboard and the selection
}
