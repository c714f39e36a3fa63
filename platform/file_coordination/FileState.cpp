// SPDX-License-Identifier: MIT
#include "platform/file_coordination/FileState.h"

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace {

constexpr int mostFilesInADocument = 10'000; // a folder with more is seen by the first of them

qint64 nanoseconds(const timespec &time)
{
    constexpr qint64 perSecond = 1'000'000'000;
    return static_cast<qint64>(time.tv_sec) * perSecond + time.tv_nsec;
}

FileState stateOf(const struct stat &status)
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
    for (int count = 0; count < mostFilesInADocument; ++count) {
        const dirent *entry = ::readdir(folder.get());
        if (!entry)
            return;
        struct stat status;
        if (::fstatat(::dirfd(folder.get()), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0
            || !S_ISREG(status.st_mode))
            continue;
        const FileState file = stateOf(status);
        state.size += file.size;
        state.modified = std::max(state.modified, file.modified);
        state.changed = std::max(state.changed, file.changed);
    }
}

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
    FileState state = stateOf(status);
    if (S_ISDIR(status.st_mode))
        addFilesOfFolder(path, state);
    return state;
}
