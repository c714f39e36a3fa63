// SPDX-License-Identifier: MIT
#include "platform/pasteboard/WaylandPaste.h"

#include "platform/system/Processes.h"

#include <QFile>
#include <QStandardPaths>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;

constexpr auto pasteTimeout = 2s;

QByteArray findProgram()
{
    return qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        ? QFile::encodeName(QStandardPaths::findExecutable(QStringLiteral("wl-paste")))
        : QByteArray();
}

} // namespace

WaylandPaste::WaylandPaste(SelectionName name, quint64 maxBytes)
    : m_program(findProgram())
    , m_selection(name == SelectionName::Primary ? QByteArrayList{"--primary"} : QByteArrayList())
    , m_bytesLeft(maxBytes)
{
}

bool WaylandPaste::hasOwner()
{
    const Result<QByteArrayList, Failure> list = targets();
    return list || list.error() != Failure::Refused;
}

Result<QByteArrayList, SelectionSource::Failure> WaylandPaste::targets()
{
    if (!m_targets) {
        const Result<QByteArray, Failure> list = run({"--list-types"});
        m_targets = list ? Result<QByteArrayList, Failure>(list.value().split('\n')) : list.error();
    }
    return *m_targets;
}

Result<SelectionSource::Content, SelectionSource::Failure> WaylandPaste::convert(const QByteArray &target)
{
    Result<QByteArray, Failure> bytes = run({"--no-newline", "--type", target});
    if (!bytes)
        return bytes.error();
    // Wayland texts are UTF-8, also under the X names of their forms.
    return Content{"UTF8_STRING", std::move(bytes).value()};
}

Result<QByteArray, SelectionSource::Failure> WaylandPaste::run(const QByteArrayList &options)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return Failure::Refused;
    const OwnedDescriptor output(ends[0]);
    OwnedDescriptor input(ends[1]);
    ChildFiles files;
    // The pipe comes first: it may be the standard input or error if this process has closed its own.
    files.duplicate(input.get(), STDOUT_FILENO)
        .open(STDIN_FILENO, "/dev/null", O_RDONLY)
        .open(STDERR_FILENO, "/dev/null", O_WRONLY)
        .closeFrom(STDERR_FILENO + 1);
    const auto child = launchChild(m_program, QByteArrayList{m_program} + m_selection + options, files);
    if (!child)
        return Failure::Refused;
    input = OwnedDescriptor(); // otherwise the output would never end

    Result<QByteArray, Failure> bytes = readOutput(output.get());
    const bool hasExited = bytes && waitUntilReadable(child->processFile.get(), pasteTimeout);
    if (!hasExited)
        ::kill(child->process, SIGKILL);
    const std::optional<int> status = reapChild(child->process);
    if (!bytes)
        return bytes;
    if (!hasExited)
        return Failure::NoAnswer;
    if (!status || !WIFEXITED(*status) || WEXITSTATUS(*status) != 0)
        return Failure::Refused; // nothing is selected, or not in that form
    return bytes;
}

Result<QByteArray, SelectionSource::Failure> WaylandPaste::readOutput(int descriptor)
{
    QByteArray bytes;
    std::array<char, 65'536> piece; // as large as a pipe's buffer
    while (waitUntilReadable(descriptor, pasteTimeout)) {
        const ssize_t count = ::read(descriptor, piece.data(), piece.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return bytes;
        if (static_cast<quint64>(count) > m_bytesLeft)
            return Failure::TooLarge;
        m_bytesLeft -= static_cast<quint64>(count);
        bytes.append(piece.data(), count);
    }
    return Failure::NoAnswer;
}
