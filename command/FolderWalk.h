// SPDX-License-Identifier: MIT
// FolderWalk lists the files below a folder as git sees them: without what a .gitignore or .git/info/exclude
// ignores, and without .git. It follows no symbolic links and opens no files but those lists.
// Thread: any.
#pragma once

#include "command/IgnoreRules.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <functional>

class FolderWalk {
public:
    static constexpr size_t maxDepth = 256; ///< folders within each other; deeper ones are reported

    using ReportFailure = std::function<void(const QByteArray &path, int systemError)>;

    /// globs: the names of files to list; all if empty. reportFailure: called for folders that cannot be
    /// read.
    FolderWalk(QByteArrayList globs, ReportFailure reportFailure)
        : m_globs(std::move(globs))
        , m_reportFailure(std::move(reportFailure))
    {
    }

    /// The regular files below a folder, by name within each folder, as paths that begin with the folder's.
    /// Takes memory in proportion to their number.
    [[nodiscard]] QByteArrayList filesBelow(const QByteArray &folder);

private:
    /// A folder with a list of its own, and the patterns in it.
    struct Level {
        IgnoreRules rules;
        qsizetype prefixLength; ///< of the paths that these rules do not see, in the folder's absolute path
    };

    void addParents(const QByteArray &absoluteFolder);
    void walk(const QByteArray &path, const QByteArray &absolutePath, size_t depth);
    [[nodiscard]] bool isIgnored(const QByteArray &absolutePath, bool isFolder) const;
    [[nodiscard]] bool isWanted(const QByteArray &name) const;

    const QByteArrayList m_globs;
    const ReportFailure m_reportFailure;
    std::vector<Level> m_levels; ///< of the folders from the root of the repository down to the open one
    QByteArrayList m_files;
};
