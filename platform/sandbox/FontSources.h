// SPDX-License-Identifier: MIT
// FontSources is where the machine's fonts come from: the files and folders that a list of fonts rests on,
// the configuration included. The fonts themselves are the layout's business. Thread: one at a time; values.
#pragma once

#include <QByteArrayList>

#include <sys/types.h>

#include <vector>

struct FontSources {
    /// A file or folder as it was when it was looked at. An absent one has a stamp too: it may come.
    struct Stamp {
        QByteArray path;
        dev_t device = 0;
        ino_t file = 0;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;

        static Stamp of(const QByteArray &path);
        bool operator==(const Stamp &) const = default;
    };

    // No more folders are walked through, no more files looked at.
    static constexpr size_t mostFolders = 20'000;
    static constexpr size_t mostFiles = 60'000;

    /// As the configuration in force (FONTCONFIG_FILE) and the disk say now. Reads no font.
    static FontSources current();
    /// The same of given folders, whatever the configuration says.
    static FontSources below(const QByteArrayList &folders);

    QByteArrayList readable; ///< paths; with all that lies below them they are all that fonts are read from
    std::vector<Stamp> stamps; ///< one of them changes when a font comes or goes
};

/// FontWatch tells whether the fonts are still those of before.
class FontWatch {
public:
    /// Looks at the disk. A number that is another one whenever fonts have come or gone since the last call,
    /// or their configuration has changed.
    [[nodiscard]] quint64 generation();

private:
    FontSources m_sources;
    quint64 m_generation = 0;
};
