// SPDX-License-Identifier: MIT
#include "platform/file_coordination/HeldFiles.h"

#include "platform/system/DispatchQueue.h"

#include <algorithm>
#include <climits>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

std::vector<HeldFile *> &heldFiles()
{
    static std::vector<HeldFile *> files;
    return files;
}

} // namespace

PinnedFile::PinnedFile(const QByteArray &path)
    : m_descriptor(::open(path.constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC))
{
}

void PinnedFile::replaceBy(PinnedFile file)
{
    auto before = std::make_shared<PinnedFile>(std::exchange(*this, std::move(file)));
    DispatchQueue(QStringLiteral("replaced file")).async([before = std::move(before)] {});
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
    // The kernel adds " (deleted)" to the name of a deleted file; another file may have that name.
    if (!path.startsWith('/') || !isAt(path))
        return std::nullopt;
    return path;
}

std::optional<FileIdentity> fileIdentityAt(const QByteArray &path)
{
    struct statx status;
    if (::statx(AT_FDCWD, path.constData(), AT_SYMLINK_NOFOLLOW, STATX_INO | STATX_BTIME, &status) != 0)
        return std::nullopt;
    constexpr qint64 perSecond = 1'000'000'000;
    const bool hasBirthTime = status.stx_mask & STATX_BTIME;
    return FileIdentity{::makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_ino,
        hasBirthTime ? status.stx_btime.tv_sec * perSecond + status.stx_btime.tv_nsec : 0};
}

std::unique_ptr<HeldFile> HeldFile::hold(const QByteArray &path, const FileIdentity &bookmarked)
{
    if (::access(path.constData(), R_OK) != 0)
        return nullptr;
    PinnedFile pin(path);
    if (!pin)
        return nullptr;
    return std::unique_ptr<HeldFile>(new HeldFile(path, bookmarked, std::move(pin)));
}

HeldFile::HeldFile(QByteArray path, const FileIdentity &bookmarked, PinnedFile pin)
    : m_path(std::move(path))
    , m_bookmarked(bookmarked)
    , m_pin(std::move(pin))
{
    heldFiles().push_back(this);
}

HeldFile::~HeldFile()
{
    std::erase(heldFiles(), this);
}

std::optional<QByteArray> HeldFile::whereabouts(const FileIdentity &bookmarked)
{
    for (const HeldFile *file : heldFiles()) {
        if (file->m_bookmarked != bookmarked)
            continue;
        if (std::optional<QByteArray> path = file->m_pin.whereabouts())
            return path;
    }
    return std::nullopt;
}

void HeldFile::replaceAt(const QByteArray &path)
{
    for (HeldFile *file : heldFiles()) {
        if (file->m_path != path)
            continue;
        if (PinnedFile pin(path); pin)
            file->m_pin.replaceBy(std::move(pin));
    }
}
