// SPDX-License-Identifier: MIT
// FontSources finds the files and folders that determine the list of fonts, including the configuration. The
// layout reads the fonts themselves.
// Thread: any, one at a time; values.
#pragma once

#include <QByteArrayList>

#include <sys/types.h>

#include <vector>

struct FontSources {
    /// The state of a file or folder. One that does not exist has a stamp too: it may appear.
    struct Stamp {
        QByteArray path;
        dev_t device = 0;
        ino_t file = 0;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;

        static Stamp of(const QByteArray &path);
        bool operator==(const Stamp &) const = default;
    };

    // More folders and files are ignored.
    static constexpr size_t maxFolders = 20'000;
    static constexpr size_t maxFiles = 60'000;

    /// The sources of the current configuration (FONTCONFIG_FILE). Reads no font.
    static FontSources current();

    QByteArrayList readable; ///< paths; fonts are read from them and from below them only
    std::vector<Stamp> stamps; ///< one of them changes when a font is added or removed
};

/// Detects changes of the fonts.
class FontWatch {
public:
    /// Checks the disk. The number increases when fonts or their configuration have changed since the last
    /// call.
    [[nodiscard]] quint64 generation();

private:
    FontSources m_sources;
    quint64 m_generation = 0;
};
