// SPDX-License-Identifier: MIT
// FileWatches is the system's watch (inotify) on one file, on the symbolic links that lead to it and on the
// folders of the way; what its events amount to, ChangePolicy decides. Thread: main.  Owner:
// FilePresentation.
#pragma once

#include "platform/file_coordination/FileEvent.h"
#include "platform/system/OwnedDescriptor.h"

#include <QByteArray>
#include <QByteArrayList>

#include <map>
#include <optional>
#include <vector>

struct inotify_event;

class FileWatches {
public:
    FileWatches();

    /// Watches what is at the path now, the path's name, the folders that it goes through, and the names of
    /// all symbolic links among them. Where the way ends early, the name that is missing is watched.
    /// To be called again once another file or another folder has come there; events are not lost by that.
    /// Absent, or the errno for which changes may go untold: ENOSPC and EMFILE where the limits of inotify
    /// are used up, EACCES for a folder that this user may not read. path: absolute.
    [[nodiscard]] std::optional<int> watch(const QByteArray &path);

    /// What has happened since the last call, in order; does not wait.
    std::vector<FileEvent> takeEvents();

    /// Readable while there are events; -1 where the system gave none.
    [[nodiscard]] int descriptor() const { return m_inotify.get(); }

private:
    struct Place {
        bool isDocument = false; // itself; else a folder
        QByteArrayList names; // in this folder, under which the document is known
        QByteArrayList wayNames; // in this folder, of links among the folders of the way
    };
    using Places = std::map<int, Place>; // by watch descriptor

    std::optional<int> watchWay(const QByteArray &path, Places &places);
    std::optional<int> watchDocument(const QByteArray &path, Places &places);
    std::optional<int> add(const QByteArray &path, quint32 mask, Places &places, const Place &place);
    [[nodiscard]] std::optional<FileEvent> meaning(const inotify_event &event, const char *name) const;

    OwnedDescriptor m_inotify;
    int m_systemError = 0; // why there is no inotify
    Places m_places;
};
