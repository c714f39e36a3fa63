// SPDX-License-Identifier: MIT
#include "counting_service/broker/WorkerLaunch.h"

#include "counting_service/worker/CountingWorker.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

std::optional<LaunchedWorker> launchWorker(const QByteArray &path, const QByteArrayList &arguments)
{
    auto sockets = connectedSockets();
    if (!sockets)
        return std::nullopt;
    // What is open in the worker: nothing to read, the log, the connection.
    ChildFiles files;
    files.open(STDIN_FILENO, "/dev/null", O_RDONLY)
        .duplicate(STDERR_FILENO, STDOUT_FILENO)
        .duplicate(sockets->second.get(), CountingWorker::socket)
        .closeFrom(CountingWorker::socket + 1);
    std::optional<LaunchedChild> child =
        launchChild(path, QByteArrayList{program_invocation_name} + arguments, files);
    if (!child)
        return std::nullopt;
    return LaunchedWorker{std::move(*child), std::move(sockets->first)};
}
