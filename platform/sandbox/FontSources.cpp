// SPDX-License-Identifier: MIT
#include "platform/sandbox/FontSources.h"

#include <fontconfig/fontconfig.h>

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>
#include <set>
#include <utility>

namespace {

using Stamp = FontSources::Stamp;

QByteArrayList listOf(FcStrList *list)
{
    QByteArrayList paths;
    if (!list)
        return paths;
    while (const FcChar8 *path = FcStrListNext(list))
        paths.append(reinterpret_cast<const char *>(path));
    FcStrListDone(list);
    return paths;
}

// The paths of the user's own fontconfig configuration, which need not exist.
QByteArrayList userConfiguration()
{
    const QByteArray home = qgetenv("HOME");
    QByteArray folder = qgetenv("XDG_CONFIG_HOME");
    if (folder.isEmpty())
        folder = home + "/.config";
    folder += "/fontconfig";
    return {
        folder, folder + "/fonts.conf", folder + "/conf.d", home + "/.fonts.conf", home + "/.fonts.conf.d"};
}

// Walks through the folders below, and through the targets of symbolic links. A target may be outside the
// readable folder, so each link becomes readable itself.
class FolderWalk {
public:
    explicit FolderWalk(FontSources &sources)
        : m_sources(sources)
    {
    }

    void walk(const QByteArrayList &folders)
    {
        m_waiting = folders;
        while (!m_waiting.isEmpty() && m_seen.size() < FontSources::maxFolders)
            look(m_waiting.takeLast());
    }

private:
    void look(const QByteArray &path)
    {
        // Stamped before it is read: a change meanwhile shows at the next check.
        const Stamp stamp = Stamp::of(path);
        m_sources.stamps.push_back(stamp);
        if (stamp.file == 0 || !m_seen.emplace(stamp.device, stamp.file).second)
            return;
        const std::unique_ptr<DIR, int (*)(DIR *)> folder(::opendir(path.constData()), ::closedir);
        while (const dirent *entry = folder ? ::readdir(folder.get()) : nullptr)
            take(path, *entry);
    }

    void take(const QByteArray &folder, const dirent &entry)
    {
        const QByteArray path = folder + '/' + entry.d_name;
        struct stat status = {};
        if (entry.d_name[0] == '.' || ::lstat(path.constData(), &status) != 0)
            return;
        if (S_ISLNK(status.st_mode)) {
            m_sources.readable.append(path);
            if (::stat(path.constData(), &status) != 0)
                return;
        }
        if (S_ISDIR(status.st_mode))
            m_waiting.append(path);
        else if (++m_files <= FontSources::maxFiles)
            m_sources.stamps.push_back(Stamp::of(path)); // a font may be overwritten
    }

    FontSources &m_sources;
    QByteArrayList m_waiting;
    std::set<std::pair<dev_t, ino_t>> m_seen;
    size_t m_files = 0;
};

} // namespace

Stamp Stamp::of(const QByteArray &path)
{
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0)
        return {.path = path};
    return {.path = path,
        .device = status.st_dev,
        .file = status.st_ino,
        .seconds = status.st_mtim.tv_sec,
        .nanoseconds = status.st_mtim.tv_nsec};
}

FontSources FontSources::current()
{
    FontSources sources;
    const std::unique_ptr<FcConfig, void (*)(FcConfig *)> config(FcInitLoadConfig(), FcConfigDestroy);
    if (!config)
        return sources;
    const QByteArrayList configuration = listOf(FcConfigGetConfigFiles(config.get()));
    for (const QByteArray &path : configuration + userConfiguration())
        sources.stamps.push_back(Stamp::of(path));
    const QByteArrayList folders = listOf(FcConfigGetFontDirs(config.get()));
    sources.readable = configuration + folders + listOf(FcConfigGetCacheDirs(config.get()));
    FolderWalk(sources).walk(folders);
    return sources;
}

quint64 FontWatch::generation()
{
    const bool isSame = m_generation > 0
        && std::all_of(m_sources.stamps.begin(), m_sources.stamps.end(),
            [](const Stamp &stamp) { return stamp == Stamp::of(stamp.path); });
    if (!isSame) {
        m_sources = FontSources::current();
        ++m_generation;
    }
    return m_generation;
}
