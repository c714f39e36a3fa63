// SPDX-License-Identifier: MIT
#include "platform/file_coordination/FileState.h"

#include "platform/system/OwnedDescriptor.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

constexpr int maxFilesPerFolder = 10'000; // a folder with more is compared by the first ones

qint64 nanoseconds(const timespec &time)
{
    constexpr qint64 perSecond = 1'000'000'000;
    return static_cast<qint64>(time.tv_sec) * perSecond + time.tv_nsec;
}

FileState fileState(const struct stat &status)
{
    return {status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim),
        nanoseconds(status.st_ctim)};
}

struct FolderCloser {
    void operator()(DIR *folder) const { ::closedir(folder); }
};

void addFilesOfFolder(const QByteArray &path, FileState &state)
{
    const std::unique_ptr<DIR, FolderCloser> folder(::opendir(path.constData()));
    if (!folder)
        return;
    state.size = 0;
    for (int count = 0; count < maxFilesPerFolder; ++count) {
        const dirent *entry = ::readdir(folder.get());
        if (!entry)
            return;
        struct stat status;
        if (::fstatat(::dirfd(folder.get()), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0
            || !S_ISREG(status.st_mode))
            continue;
        const FileState file = fileState(status);
        state.size += file.size;
        state.modified = std::max(state.modified, file.modified);
        state.changed = std::max(state.changed, file.changed);
    }
}

// f_type of statfs(2), for file systems without reliable events.
constexpr std::array<quint32, 18> unreliableFileSystems{
    0x6969, // NFS
    0xff534d42, // CIFS
    0xfe534d42, // SMB 2
    0x517b, // SMB
    0x65735546, // FUSE
    0x01021997, // 9P
    0x00c36400, // Ceph
    0x5346414f, // AFS
    0x6b414653, // kAFS
    0x73757245, // Coda
    0x564c, // NCP
    0x0bd00bd0, // Lustre
    0x01161970, // GFS2
    0x7461636f, // OCFS2
    0x786f4256, // vboxsf
    0xbacbacbc, // vmhgfs
    0x9fa0, // proc
    0x62656572, // sysfs
};

} // namespace

bool haveSameContents(const FileState &one, const FileState &other)
{
    FileState otherwise = other;
    otherwise.changed = one.changed;
    return one == otherwise;
}

std::optional<FileState> fileStateAt(const QByteArray &path)
{
    struct stat status;
    if (::stat(path.constData(), &status) != 0)
        return std::nullopt;
    FileState state = fileState(status);
    if (S_ISDIR(status.st_mode))
        addFilesOfFolder(path, state);
    return state;
}

bool isInTrash(const QByteArray &path)
{
    const QByteArray homeTrash =
        QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) + "/Trash/";
    const QByteArray user = QByteArray::number(::getuid());
    return path.startsWith(homeTrash) || path.contains("/.Trash-" + user + '/')
        || path.contains("/.Trash/" + user + '/');
}

bool mayChangeUnnoticed(const QByteArray &path)
{
    struct statfs status;
    if (::statfs(path.constData(), &status) != 0)
        return false;
    const auto type = static_cast<quint32>(status.f_type);
    return std::find(unreliableFileSystems.begin(), unreliableFileSystems.end(), type)
        != unreliableFileSystems.end();
}

bool isLockedByWriter(const QByteArray &path)
{
    struct stat status;
    if (::stat(path.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    const OwnedDescriptor file(::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file)
        return false;
    // fcntl(2) can report a lock without taking it; flock(2) cannot.
    struct flock request { };
    request.l_type = F_RDLCK;
    request.l_whence = SEEK_SET;
    if (::fcntl(file.get(), F_OFD_GETLK, &request) == 0 && request.l_type != F_UNLCK)
        return true;
    if (::flock(file.get(), LOCK_SH | LOCK_NB) != 0)
        return errno == EWOULDBLOCK;
    ::flock(file.get(), LOCK_UN);
    return false;
}
