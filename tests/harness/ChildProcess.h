// SPDX-License-Identifier: MIT
// ChildProcess runs a program of the project, or a test's helper, in the test's own world and collects what
// it prints.
// Thread: main.  Owner: the test.
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QProcess>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

/// Paths of the programs that this build made.
QString testProgram(const QString &name);
QString productProgram(const QString &name);

class ChildProcess {
public:
    struct Outcome {
        int exitStatus = -1; ///< -1 if the program was killed by a signal or did not start
        QByteArray output;
        QByteArray errors;
    };

    explicit ChildProcess(QString program)
        : m_program(std::move(program))
    {
    }
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;
    /// Kills the program if it is still running.
    ~ChildProcess();

    // To be called before the program starts.
    ChildProcess &withVariable(const char *name, const QByteArray &value);
    ChildProcess &withoutVariable(const char *name);
    ChildProcess &inFolder(const QString &folder);
    /// Runs the program as a user without files and without root's groups, from a copy that this user can
    /// read. Has no effect if the test does not run as root: then permissions apply to it anyway.
    ChildProcess &asOtherUser();
    /// Called in the child between fork and exec: only async-signal-safe calls.
    ChildProcess &afterFork(const std::function<void()> &call);

    /// Runs the program until it exits, with the given standard input; fails the test after a minute.
    Outcome run(const QByteArrayList &arguments, const QByteArray &input = {});

    // For exchanging several lines with the program.
    void start(const QByteArrayList &arguments);
    void writeLine(const QByteArray &line);
    /// The next line of its standard output, without line end; fails the test after 20 seconds.
    QByteArray readLine();
    void kill();
    Outcome finish();
    [[nodiscard]] qint64 processIdentifier() const { return m_process.processId(); }

private:
    void execWithBytes(const QByteArrayList &arguments);

    QString m_program;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    std::vector<std::function<void()>> m_afterFork;
    QProcess m_process;
};
