// SPDX-License-Identifier: MIT
#include "platform/file_coordination/PinnedFile.h"

#include <climits>
#include <fcntl.h>
#include <sys/stat.h>

PinnedFile::PinnedFile(const QByteArray &path)
    : m_descriptor(::open(path.constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC))
{
}

bool PinnedFile::isAt(const QByteArray &path) const
{
    struct stat pinned;
    struct stat named;
    return m_descriptor && ::fstat(m_descriptor.get(), &pinned) == 0 && ::lstat(path.constData(), &named) == 0
        && pinned.st_dev == named.st_dev && pinned.st_ino == named.st_ino;
}

std::optional<QByteArray> PinnedFile::whereabouts() const
{
    if (!m_descriptor)
        return std::nullopt;
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(m_descriptor.get());
    QByteArray path(PATH_MAX, Qt::Uninitialized);
    const ssize_t length = ::readlink(link.constData(), path.data(), static_cast<size_t>(path.size()));
    if (length <= 0 || length == path.size())
        return std::nullopt;
    path.truncate(length);
    // A file without a name gets " (deleted)" added to its last one, which may be another file's name.
    if (!path.startsWith('/') || !isAt(path))
        return std::nullopt;
    return path;
}
