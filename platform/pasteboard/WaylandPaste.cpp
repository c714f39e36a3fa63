// SPDX-License-Identifier: MIT
#include "platform/pasteboard/WaylandPaste.h"

#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr int pasteTimeout = 2'000; // milliseconds

QString program()
{
    return qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        ? QStandardPaths::findExecutable(QStringLiteral("wl-paste"))
        : QString();
}

void end(QProcess &process)
{
    process.kill();
    process.waitForFinished(pasteTimeout);
}

} // namespace

WaylandPaste::WaylandPaste(SelectionName name, quint64 largest)
    : m_program(program())
    , m_selection(name == SelectionName::Primary ? QStringList{QStringLiteral("--primary")} : QStringList())
    , m_left(largest)
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
        const Result<QByteArray, Failure> list = run({QStringLiteral("--list-types")});
        m_targets = list ? Result<QByteArrayList, Failure>(list.value().split('\n')) : list.error();
    }
    return *m_targets;
}

Result<SelectionSource::Content, SelectionSource::Failure> WaylandPaste::convert(const QByteArray &target)
{
    Result<QByteArray, Failure> bytes =
        run({QStringLiteral("--no-newline"), QStringLiteral("--type"), QString::fromUtf8(target)});
    if (!bytes)
        return bytes.error();
    // Texts are in UTF-8 there, under their old names too.
    return Content{"UTF8_STRING", std::move(bytes).value()};
}

Result<QByteArray, SelectionSource::Failure> WaylandPaste::run(const QStringList &words)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(m_program, m_selection + words);
    if (!process.waitForStarted(pasteTimeout))
        return Failure::Refused;
    QByteArray bytes;
    for (bool hasMore = true; hasMore;) {
        hasMore = process.waitForReadyRead(pasteTimeout);
        const QByteArray piece = process.readAllStandardOutput();
        if (static_cast<quint64>(piece.size()) > m_left) {
            end(process);
            return Failure::TooLarge;
        }
        m_left -= static_cast<quint64>(piece.size());
        bytes += piece;
    }
    if (process.state() != QProcess::NotRunning) {
        end(process);
        return Failure::NoAnswer;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return Failure::Refused; // there is nothing, or not in that form
    return bytes;
}
