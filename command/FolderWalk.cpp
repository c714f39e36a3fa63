// SPDX-License-Identifier: MIT
#include "command/FolderWalk.h"

#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <memory>
#include <ranges>

namespace {

struct Entry {
    QByteArray name;
    bool isFolder;

    bool operator<(const Entry &other) const { return name < other.name; }
};

IgnoreRules rulesIn(const QByteArray &path)
{
    // Not through a link or from a pipe, which a repository of somebody else may contain.
    struct stat status { };
    if (::lstat(path.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? IgnoreRules(file.read(IgnoreRules::maxFileLength))
                                          : IgnoreRules();
}

bool exists(const QByteArray &path)
{
    struct stat status { };
    return ::lstat(path.constData(), &status) == 0;
}

/// The folders and regular files in a folder, by name; absent if it cannot be read (errno).
std::optional<std::vector<Entry>> entriesOf(const QByteArray &folder)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> directory(::opendir(folder.constData()), ::closedir);
    if (!directory)
        return std::nullopt;
    std::vector<Entry> entries;
    while (const dirent *const entry = ::readdir(directory.get())) { // NOLINT(concurrency-mt-unsafe)
        const QByteArray name(entry->d_name);
        if (name == "." || name == ".." || name == ".git")
            continue;
        struct stat status { };
        if (::fstatat(::dirfd(directory.get()), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            continue; // it has gone meanwhile
        if (S_ISDIR(status.st_mode) || S_ISREG(status.st_mode))
            entries.push_back({name, S_ISDIR(status.st_mode)});
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

QByteArray absolutePathOf(const QByteArray &path)
{
    const std::unique_ptr<char, void (*)(void *)> real(::realpath(path.constData(), nullptr), std::free);
    return real ? QByteArray(real.get()) : QByteArray();
}

QByteArray joined(const QByteArray &folder, const QByteArray &name)
{
    return folder.endsWith('/') ? folder + name : folder + '/' + name;
}

} // namespace

QByteArrayList FolderWalk::filesBelow(const QByteArray &folder)
{
    m_files.clear();
    m_levels.clear();
    const QByteArray absolutePath = absolutePathOf(folder);
    if (absolutePath.isEmpty()) {
        m_reportFailure(folder, errno);
        return {};
    }
    addParents(absolutePath);
    walk(folder, absolutePath, 0);
    return m_files;
}

// The lists of the folders above count up to the root of the repository, if the folder is in one.
void FolderWalk::addParents(const QByteArray &absoluteFolder)
{
    QByteArrayList parents;
    QByteArray root = absoluteFolder;
    while (!exists(joined(root, ".git"))) {
        const qsizetype slash = root.lastIndexOf('/');
        if (slash <= 0)
            return;
        root.truncate(slash);
        parents.prepend(root);
    }
    m_levels.push_back({rulesIn(joined(root, ".git/info/exclude")), root.size() + 1});
    for (const QByteArray &parent : parents)
        m_levels.push_back({rulesIn(joined(parent, ".gitignore")), parent.size() + 1});
}

void FolderWalk::walk(const QByteArray &path, const QByteArray &absolutePath, size_t depth)
{
    if (depth > maxDepth) {
        m_reportFailure(path, ELOOP);
        return;
    }
    const std::optional<std::vector<Entry>> entries = entriesOf(path);
    if (!entries) {
        m_reportFailure(path, errno);
        return;
    }
    const qsizetype prefixLength = absolutePath.size() + (absolutePath.endsWith('/') ? 0 : 1);
    m_levels.push_back({rulesIn(joined(path, ".gitignore")), prefixLength});
    for (const Entry &entry : *entries) {
        const QByteArray absoluteEntry = joined(absolutePath, entry.name);
        if (isIgnored(absoluteEntry, entry.isFolder))
            continue;
        if (entry.isFolder)
            walk(joined(path, entry.name), absoluteEntry, depth + 1);
        else if (isWanted(entry.name))
            m_files.append(joined(path, entry.name));
    }
    m_levels.pop_back();
}

// The list that is nearest to the file decides.
bool FolderWalk::isIgnored(const QByteArray &absolutePath, bool isFolder) const
{
    for (const auto &level : m_levels | std::views::reverse) {
        const QByteArrayView path = QByteArrayView(absolutePath).sliced(level.prefixLength);
        if (const std::optional<bool> ignored = level.rules.ignores(path, isFolder))
            return *ignored;
    }
    return false;
}

bool FolderWalk::isWanted(const QByteArray &name) const
{
    return m_globs.isEmpty() || std::any_of(m_globs.begin(), m_globs.end(), [&name](const QByteArray &glob) {
        return matchesGlob(glob, name, false);
    });
}
