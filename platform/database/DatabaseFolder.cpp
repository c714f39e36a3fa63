// SPDX-License-Identifier: MIT
#include "platform/database/DatabaseFolder.h"

#include "platform/system/SystemError.h"

#include <QDateTime>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <thread>

int makeFolder(const QByteArray &path)
{
    // XDG base directories are created with this mode.
    constexpr mode_t mode = 0700;
    if (::mkdir(path.constData(), mode) == 0 || errno == EEXIST)
        return 0;
    const qsizetype slash = path.lastIndexOf('/');
    if (errno != ENOENT || slash <= 0)
        return errno;
    if (const int error = makeFolder(path.first(slash)))
        return error;
    return ::mkdir(path.constData(), mode) == 0 || errno == EEXIST ? 0 : errno;
}

FolderLock::FolderLock(const QByteArray &folder, std::chrono::milliseconds timeout)
    : m_descriptor(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (!m_descriptor) {
        m_error = errno;
        return;
    }
    // flock() has no timeout. The steps are shorter than one write, so that a process that writes without
    // pause does not keep the others out.
    constexpr std::chrono::microseconds step(200);
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (::flock(m_descriptor.get(), LOCK_EX | LOCK_NB) != 0) {
        m_error = errno;
        if ((m_error != EWOULDBLOCK && m_error != EINTR) || std::chrono::steady_clock::now() >= deadline)
            return;
        m_error = 0;
        std::this_thread::sleep_for(step);
    }
}

FolderLock::~FolderLock()
{
    // Closing alone would leave the lock to a child that another thread is forking, until its exec.
    if (m_descriptor && m_error == 0)
        ::flock(m_descriptor.get(), LOCK_UN);
}

QByteArray putAside(const QByteArray &databasePath)
{
    // The database lies where a symbolic link points to, and its journal beside it.
    const std::unique_ptr<char, decltype(&std::free)> real(
        ::realpath(databasePath.constData(), nullptr), &std::free);
    if (!real)
        return {};
    const QByteArray from(real.get());
    QByteArray to = from + ".broken-"
        + QDateTime::currentDateTimeUtc().toString(u"yyyyMMdd-hhmmss").toLatin1() + '-'
        + QByteArray::number(QRandomGenerator::system()->generate(), 16);
    // The journal first: if it stayed, SQLite would apply it to the new database.
    for (const char *suffix : {"-journal", "-wal", "-shm", ""}) {
        if (::rename((from + suffix).constData(), (to + suffix).constData()) != 0
            && (errno != ENOENT || *suffix == '\0'))
            return {};
    }
    return to;
}

std::optional<DatabaseFault> writeInFolder(DatabaseFile &database, std::chrono::milliseconds timeout,
    const std::function<std::optional<DatabaseFault>()> &write,
    const std::function<void(const DatabaseFault &fault, const QByteArray &newName)> &putAsideDone)
{
    const QByteArray folder = database.path().first(database.path().lastIndexOf('/'));
    if (const int error = makeFolder(folder))
        return DatabaseFault{DatabaseFault::Kind::Other, systemErrorText(error)};
    const FolderLock lock(folder, timeout);
    if (lock.error() == EWOULDBLOCK)
        return DatabaseFault{DatabaseFault::Kind::Busy, QStringLiteral("another process keeps it locked")};
    if (lock.error() != 0)
        return DatabaseFault{DatabaseFault::Kind::Other, systemErrorText(lock.error())};
    database.setTimeout(timeout);
    auto fault = write();
    if (!fault || fault->kind != DatabaseFault::Kind::Broken)
        return fault;
    // The failed write has checked the file at the path, and nobody replaces it while the lock is held: the
    // file that is put aside is the broken one.
    const QByteArray newPath = putAside(database.path());
    if (newPath.isEmpty())
        return DatabaseFault{
            DatabaseFault::Kind::Other, fault->reason + QStringLiteral("; ") + systemErrorText(errno)};
    putAsideDone(*fault, newPath.sliced(newPath.lastIndexOf('/') + 1));
    return write();
}
