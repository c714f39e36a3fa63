// SPDX-License-Identifier: MIT
// ReaderPrograms finds the processes of the program that reads documents, and tells their states.
// Thread: any.
#pragma once

#include "tests/harness/WaitUntil.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <unistd.h>

#include <algorithm>
#include <vector>

/// A file of the process below /proc; empty where the process has ended.
inline QByteArray procFile(pid_t process, const char *name)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A line of its status.
inline QByteArray statusOf(pid_t process, const QByteArray &name)
{
    for (const QByteArray &line : procFile(process, "status").split('\n')) {
        if (line.startsWith(name + ":\t"))
            return line.sliced(name.size() + 2);
    }
    return {};
}

/// Zombies among them. Without the readers of other tests in this process.
inline std::vector<pid_t> childrenOf(qint64 parent = ::getpid(), const std::vector<pid_t> &others = {})
{
    std::vector<pid_t> children;
    for (const QString &entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        const pid_t process = entry.toInt();
        if (process > 0 && statusOf(process, "PPid").toLongLong() == parent
            && std::ranges::find(others, process) == others.end())
            children.push_back(process);
    }
    return children;
}

/// A reader that the process has started, once it is in its sandbox, except the others; 0 after a timeout.
inline pid_t confinedReader(qint64 parent = ::getpid(), const std::vector<pid_t> &others = {})
{
    pid_t reader = 0;
    (void)waitUntil([&] {
        for (const pid_t process : childrenOf(parent, others)) {
            if (statusOf(process, "Seccomp") == "2")
                reader = process;
        }
        return reader != 0;
    });
    return reader;
}

/// A web page that takes a reader seconds.
inline QByteArray slowPage()
{
    return "<!DOCTYPE html><p " + QByteArray("a=1 ").repeated(2'000'000);
}

/// A reader of this process that has been given a document, as it has limits; 0 after a timeout.
inline pid_t readerAtWork()
{
    pid_t reader = 0;
    (void)waitUntil([&] {
        for (const pid_t process : childrenOf()) {
            const QByteArray limits = procFile(process, "limits").simplified();
            if (statusOf(process, "Seccomp") == "2" && !limits.contains("Max cpu time unlimited"))
                reader = process;
        }
        return reader != 0;
    });
    return reader;
}

/// Whether the process ends.
inline bool waitUntilEnded(pid_t process)
{
    return waitUntil([process] {
        const QByteArray state = statusOf(process, "State");
        return state.isEmpty() || state.startsWith('Z');
    });
}
