// SPDX-License-Identifier: MIT
#include "tests/harness/ChildProcess.h"

#include "platform/system/Sanitizers.h"
#include "tests/harness/TestHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <grp.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr uid_t nobody = 65534;
constexpr int patience = isSanitized ? 4 : 1;
constexpr int exitTimeout = patience * 60'000; // milliseconds
constexpr int lineTimeout = patience * 20'000;

/// QProcess accepts arguments only as text.
bool isText(const QByteArray &argument)
{
    return QFile::encodeName(QFile::decodeName(argument)) == argument;
}

std::vector<char *> pointersTo(QByteArrayList &strings)
{
    std::vector<char *> pointers;
    for (QByteArray &string : strings)
        pointers.push_back(string.data());
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

QString testProgram(const QString &name)
{
    return QStringLiteral(TEST_PROGRAMS "/") + name;
}

QString productProgram(const QString &name)
{
    return QStringLiteral(PRODUCT_PROGRAMS "/") + name;
}

ChildProcess::~ChildProcess()
{
    kill();
}

ChildProcess &ChildProcess::withVariable(const char *name, const QByteArray &value)
{
    m_environment.insert(QString::fromLatin1(name), QFile::decodeName(value));
    return *this;
}

ChildProcess &ChildProcess::withoutVariable(const char *name)
{
    m_environment.remove(QString::fromLatin1(name));
    return *this;
}

ChildProcess &ChildProcess::inFolder(const QString &folder)
{
    m_process.setWorkingDirectory(folder);
    return *this;
}

ChildProcess &ChildProcess::asOtherUser()
{
    if (::geteuid() != 0)
        return *this;
    const QString folder = TestHome::instance().root() + QStringLiteral("/programs");
    QDir().mkpath(folder);
    const QString copy = folder + u'/' + QFileInfo(m_program).fileName();
    if (!QFile::exists(copy) && !QFile::copy(m_program, copy))
        ADD_FAILURE() << "cannot copy " << m_program.toStdString();
    m_program = copy;
    return afterFork([] {
        if (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0)
            ::_exit(126);
    });
}

ChildProcess &ChildProcess::afterFork(const std::function<void()> &call)
{
    m_afterFork.push_back(call);
    return *this;
}

/// Executes the program in the child, before QProcess would.
void ChildProcess::execWithBytes(const QByteArrayList &arguments)
{
    QByteArrayList words = QByteArrayList{QFile::encodeName(m_program)} + arguments;
    QByteArrayList variables;
    for (const QString &variable : m_environment.toStringList())
        variables.append(QFile::encodeName(variable));
    // Taken before the capture shares the bytes: a later data() would detach them.
    const std::vector<char *> argv = pointersTo(words);
    const std::vector<char *> environment = pointersTo(variables);
    afterFork([words, variables, argv, environment] { ::execve(argv[0], argv.data(), environment.data()); });
}

void ChildProcess::start(const QByteArrayList &arguments)
{
    if (!std::ranges::all_of(arguments, isText))
        execWithBytes(arguments);
    QStringList decoded;
    for (const QByteArray &argument : arguments)
        decoded.append(QFile::decodeName(argument));
    m_process.setProcessEnvironment(m_environment);
    m_process.setChildProcessModifier([this] {
        for (const auto &call : m_afterFork)
            call();
    });
    m_process.start(m_program, decoded);
    if (!m_process.waitForStarted())
        ADD_FAILURE() << "cannot start " << m_program.toStdString();
}

ChildProcess::Outcome ChildProcess::run(const QByteArrayList &arguments, const QByteArray &input)
{
    start(arguments);
    m_process.write(input);
    return finish();
}

void ChildProcess::writeLine(const QByteArray &line)
{
    m_process.write(line + '\n');
    while (m_process.bytesToWrite() > 0 && m_process.waitForBytesWritten(lineTimeout)) { }
}

QByteArray ChildProcess::readLine()
{
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(lineTimeout)) {
            ADD_FAILURE() << m_program.toStdString() << " printed no further line; its errors: "
                          << m_process.readAllStandardError().toStdString();
            return {};
        }
    }
    QByteArray line = m_process.readLine();
    line.chop(1);
    return line;
}

void ChildProcess::kill()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished();
}

ChildProcess::Outcome ChildProcess::finish()
{
    m_process.closeWriteChannel();
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(exitTimeout)) {
        ADD_FAILURE() << m_program.toStdString() << " did not exit";
        kill();
    }
    Outcome outcome;
    if (m_process.exitStatus() == QProcess::NormalExit)
        outcome.exitStatus = m_process.exitCode();
    outcome.output = m_process.readAllStandardOutput();
    outcome.errors = m_process.readAllStandardError();
    return outcome;
}
