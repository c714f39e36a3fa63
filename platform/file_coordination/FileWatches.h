// SPDX-License-Identifier: MIT
// FileWatches watches one file with inotify, together with the folders and symbolic links of its path;
// ChangePolicy decides what the events mean.
// Thread: main.  Owner: FilePresentation.
#pragma once

#include "platform/file_coordination/ChangePolicy.h"
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

    /// Watches what is at the path now, its name, the folders of the path, and the names of all symbolic
    /// links among them. If a folder is missing, watches the missing name. To be called again when another
    /// file or folder has appeared there; no events are lost. Returns an errno if changes may be missed:
    /// ENOSPC or EMFILE if a limit of inotify is reached, EACCES for a folder that this user may not read.
    /// path: absolute.
    [[nodiscard]] std::optional<int> watch(const QByteArray &path);

    /// The events since the last call, in order. Does not wait.
    std::vector<FileEvent> takeEvents();

    /// Readable while there are events; -1 if inotify is not available.
    [[nodiscard]] int descriptor() const { return m_inotify.get(); }

private:
    struct Place {
        bool isDocument = false; // otherwise a folder
        QByteArrayList names; // of the document in this folder
        QByteArrayList pathNames; // of links and missing folders of the path in this folder
    };
    using Places = std::map<int, Place>; // by watch descriptor

    std::optional<int> watchPath(const QByteArray &path, Places &places);
    std::optional<int> watchDocument(const QByteArray &path, Places &places);
    std::optional<int> add(const QByteArray &path, quint32 mask, Places &places, const Place &place);
    [[nodiscard]] std::optional<FileEvent> meaning(const inotify_event &event, const char *name) const;

    OwnedDescriptor m_inotify;
    int m_systemError = 0; // errno if inotify is not available
    Places m_places;
};
