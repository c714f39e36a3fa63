// SPDX-License-Identifier: MIT
// IgnoreRules are the patterns of one .gitignore file, matched as git does (gitignore(5)). Which files there
// are in which folders, FolderWalk knows.
// Thread: any; a value.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>
#include <vector>

/// Whether a glob matches all of a text, as in fnmatch(3): * and ? do not match "/", [a-z] and [!a] and [^a]
/// are sets, a backslash takes the next character as it is. With isPath, "**/" at the start, "/**" at the end
/// and
/// "/**/" match any number of folders. Takes time proportional to the product of the lengths.
bool matchesGlob(QByteArrayView glob, QByteArrayView text, bool isPath);

class IgnoreRules {
public:
    static constexpr qsizetype maxFileLength = 1 << 20; ///< bytes; the rest of a file is not read
    static constexpr qsizetype maxPatternLength = 4096; ///< bytes; longer patterns match nothing

    IgnoreRules() = default;
    explicit IgnoreRules(QByteArrayView file);

    [[nodiscard]] bool isEmpty() const { return m_patterns.empty(); }

    /// Whether the last pattern that matches ignores the path (true) or takes it in again (false); absent if
    /// none matches. path: from the folder of the file, with "/" between names.
    [[nodiscard]] std::optional<bool> ignores(QByteArrayView path, bool isFolder) const;

private:
    struct Pattern {
        QByteArray glob;
        bool isNegated = false;
        bool isForFolders = false;
        bool isAnchored = false; ///< matches paths, otherwise names
    };

    void add(QByteArrayView line);

    std::vector<Pattern> m_patterns;
};
