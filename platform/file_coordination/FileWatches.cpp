// SPDX-License-Identifier: MIT
#include "platform/file_coordination/FileWatches.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <sys/inotify.h>
#include <sys/stat.h>

namespace {

constexpr int mostLinks = 40; // as many symbolic links as the system follows (path_resolution(7))

// Nothing is watched that programs do to the attributes alone: they do it after saving, and it changes no
// text.
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

QByteArray nameOf(const QByteArray &path)
{
    return path.sliced(path.lastIndexOf('/') + 1);
}

/// What the symbolic link says, made absolute; absent where it is none.
std::optional<QByteArray> targetOfLink(const QByteArray &path)
{
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    const ssize_t length = ::readlink(path.constData(), target.data(), static_cast<size_t>(target.size()));
    if (length <= 0)
        return std::nullopt;
    target.truncate(length);
    return target.startsWith('/') ? target : folderOf(path) + '/' + target;
}

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
    return FileEvent::Gone; // the watch has ended with the file
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
    // Names first: a file that comes while the rest is set up is told of.
    std::optional<int> error = watchNames(path, places);
    if (const std::optional<int> documentError = watchDocument(path, places); !error)
        error = documentError;
    for (const auto &[watch, place] : m_places) {
        if (!places.contains(watch))
            ::inotify_rm_watch(m_inotify.get(), watch);
    }
    m_places = std::move(places);
    return error;
}

std::optional<int> FileWatches::watchNames(const QByteArray &path, Places &places)
{
    QByteArray link = path;
    for (int links = 0; links <= mostLinks; ++links) {
        const QByteArray folder = folderOf(link);
        if (const std::optional<int> error = add(folder, nameMask, places, {false, {nameOf(link)}}))
            return error;
        watchFoldersAbove(folder, places);
        const std::optional<QByteArray> target = targetOfLink(link);
        if (!target)
            return std::nullopt;
        link = *target;
    }
    return std::nullopt;
}

std::optional<int> FileWatches::watchDocument(const QByteArray &path, Places &places)
{
    const std::optional<int> error = add(path, documentMask, places, {true, {}});
    // Its name is watched, so that its coming will be told.
    return error == ENOENT ? std::nullopt : error;
}

void FileWatches::watchFoldersAbove(const QByteArray &folder, Places &places)
{
    // One that this user may not read is left out: this user cannot have moved it either.
    for (QByteArray above = folderOf(folder); above.size() > 1; above = folderOf(above))
        add(above, folderMask, places, {});
}

std::optional<int> FileWatches::add(const QByteArray &path, quint32 mask, Places &places, const Place &place)
{
    // One folder can have several parts; its watch then serves them all.
    const int watch = ::inotify_add_watch(m_inotify.get(), path.constData(), mask | IN_MASK_ADD);
    if (watch < 0)
        return errno;
    Place &known = places[watch];
    known.isDocument = known.isDocument || place.isDocument;
    known.names += place.names;
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
    return place.names.contains(QByteArray::fromRawData(name, qsizetype(std::strlen(name))))
        ? meaningForName(event.mask)
        : std::nullopt;
}
