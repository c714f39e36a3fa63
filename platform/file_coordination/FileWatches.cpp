// SPDX-License-Identifier: MIT
#include "platform/file_coordination/FileWatches.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <sys/inotify.h>
#include <sys/stat.h>

namespace {

constexpr int maxLinks = 40; // as many symbolic links as the system follows (path_resolution(7))

// Changes of attributes alone are not watched: programs make them after saving, and they change no text.
constexpr quint32 nameMask =
    IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_CLOSE_WRITE | IN_MOVE_SELF | IN_DELETE_SELF;
constexpr quint32 folderMask = IN_MOVE_SELF | IN_DELETE_SELF;
constexpr quint32 documentMask =
    IN_MODIFY | IN_CLOSE_WRITE | IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO; // names: of a folder

QByteArray folderOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash <= 0 ? QByteArray("/") : path.first(slash);
}

/// The target of the symbolic link; absent if it is not one.
std::optional<QByteArray> targetOfLink(const QByteArray &path)
{
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    const ssize_t length = ::readlink(path.constData(), target.data(), static_cast<size_t>(target.size()));
    if (length <= 0)
        return std::nullopt;
    target.truncate(length);
    return target;
}

bool exists(const QByteArray &path)
{
    struct stat status;
    return ::lstat(path.constData(), &status) == 0;
}

/// Walks a path name by name, as the system does (path_resolution(7)).
class PathWalk {
public:
    explicit PathWalk(const QByteArray &path)
        : m_names(path.split('/'))
    {
    }

    /// Advances to the next name; false at the end.
    bool next()
    {
        m_folder = m_path;
        while (!m_names.isEmpty()) {
            const QByteArray name = m_names.takeFirst();
            if (name == "..") {
                m_folder = folderOf(m_folder);
            } else if (!name.isEmpty() && name != ".") {
                m_name = name;
                m_path = m_folder.endsWith('/') ? m_folder + name : m_folder + '/' + name;
                return true;
            }
        }
        return false;
    }
    /// Continues at the target of the current link.
    void follow(const QByteArray &target)
    {
        m_path = target.startsWith('/') ? QByteArray("/") : m_folder;
        m_names = target.split('/') + m_names;
    }

    [[nodiscard]] const QByteArray &folder() const { return m_folder; } ///< without symbolic links
    [[nodiscard]] const QByteArray &name() const { return m_name; }
    [[nodiscard]] const QByteArray &path() const { return m_path; } ///< of the name in the folder
    /// Whether this is the last name.
    [[nodiscard]] bool isAtEnd() const
    {
        return std::all_of(m_names.begin(), m_names.end(),
            [](const QByteArray &name) { return name.isEmpty() || name == "."; });
    }

private:
    QByteArrayList m_names; // the remaining ones
    QByteArray m_path{"/"};
    QByteArray m_folder{"/"};
    QByteArray m_name;
};

std::optional<FileEvent> meaningForDocument(quint32 mask)
{
    if (mask & IN_MODIFY)
        return FileEvent::Written;
    if (mask & IN_CLOSE_WRITE)
        return FileEvent::Closed;
    if (mask & IN_MOVED_TO)
        return FileEvent::Replaced;
    if (mask & (IN_CREATE | IN_DELETE | IN_MOVED_FROM))
        return FileEvent::Written;
    return FileEvent::Gone; // the watch ended with the file
}

std::optional<FileEvent> meaningForName(quint32 mask)
{
    if (mask & IN_CLOSE_WRITE)
        return FileEvent::Closed;
    if (mask & IN_MOVED_TO)
        return FileEvent::Replaced;
    if (mask & IN_CREATE)
        return FileEvent::Created;
    if (mask & (IN_DELETE | IN_MOVED_FROM))
        return FileEvent::Gone;
    return std::nullopt;
}

} // namespace

FileWatches::FileWatches()
    : m_inotify(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    , m_systemError(m_inotify ? 0 : errno)
{
}

std::optional<int> FileWatches::watch(const QByteArray &path)
{
    if (!m_inotify)
        return m_systemError;
    Places places;
    // Names first: a file that appears during the rest of the setup has an event.
    std::optional<int> error = watchPath(path, places);
    if (const std::optional<int> documentError = watchDocument(path, places); !error)
        error = documentError;
    for (const auto &[watch, place] : m_places) {
        if (!places.contains(watch))
            ::inotify_rm_watch(m_inotify.get(), watch);
    }
    m_places = std::move(places);
    return error;
}

std::optional<int> FileWatches::watchPath(const QByteArray &path, Places &places)
{
    int links = 0;
    for (PathWalk walk(path); links <= maxLinks && walk.next();) {
        if (walk.folder().size() > 1)
            add(walk.folder(), folderMask, places, {});
        // The name of an existing folder need not be watched: the folder itself is.
        if (!walk.isAtEnd() && !targetOfLink(walk.path()) && exists(walk.path()))
            continue;
        const QByteArrayList name{walk.name()};
        const Place place = walk.isAtEnd() ? Place{false, name, {}} : Place{false, {}, name};
        if (const std::optional<int> error = add(walk.folder(), nameMask, places, place))
            return error;
        if (const std::optional<QByteArray> target = targetOfLink(walk.path())) {
            walk.follow(*target);
            ++links;
        }
    }
    return std::nullopt;
}

std::optional<int> FileWatches::watchDocument(const QByteArray &path, Places &places)
{
    const std::optional<int> error =
        add(path, documentMask, places, {.isDocument = true, .names = {}, .pathNames = {}});
    // Its name is watched, so its appearance will have an event.
    return error == ENOENT ? std::nullopt : error;
}

std::optional<int> FileWatches::add(const QByteArray &path, quint32 mask, Places &places, const Place &place)
{
    // One folder can play several parts; its watch then serves them all.
    const int watch = ::inotify_add_watch(m_inotify.get(), path.constData(), mask | IN_MASK_ADD);
    if (watch < 0)
        return errno;
    Place &known = places[watch];
    known.isDocument = known.isDocument || place.isDocument;
    known.names += place.names;
    known.pathNames += place.pathNames;
    return std::nullopt;
}

std::vector<FileEvent> FileWatches::takeEvents()
{
    std::vector<FileEvent> events;
    alignas(inotify_event) char buffer[16'384];
    for (;;) {
        const ssize_t length = ::read(m_inotify.get(), buffer, sizeof buffer);
        if (length <= 0)
            return events;
        for (const char *at = buffer; at < buffer + length;) {
            inotify_event event;
            std::memcpy(&event, at, sizeof event);
            const char *name = at + sizeof event;
            if (const std::optional<FileEvent> known = meaning(event, event.len ? name : ""))
                events.push_back(*known);
            at += sizeof event + event.len;
        }
    }
}

std::optional<FileEvent> FileWatches::meaning(const inotify_event &event, const char *name) const
{
    if (event.mask & IN_Q_OVERFLOW)
        return FileEvent::Unknown;
    const auto found = m_places.find(event.wd);
    if (found == m_places.end())
        return std::nullopt;
    const Place &place = found->second;
    if (place.isDocument)
        return meaningForDocument(event.mask);
    if (event.mask & (IN_MOVE_SELF | IN_DELETE_SELF | IN_UNMOUNT | IN_IGNORED))
        return FileEvent::FolderMoved;
    const auto named = QByteArray::fromRawData(name, static_cast<qsizetype>(std::strlen(name)));
    if (place.names.contains(named))
        return meaningForName(event.mask);
    return place.pathNames.contains(named) ? std::optional(FileEvent::FolderMoved) : std::nullopt;
}
