// SPDX-License-Identifier: MIT
// FileError says why the contents of a file could not be had; which file it was, its receiver knows.
// Thread: any; a value.
#pragma once

#include <QString>

struct FileError {
    enum class Cause {
        NoSuchFile,
        Folder,
        NamedPipe,
        Device,
        Socket,
        NoPermission,
        TooLarge, ///< larger than a document may be
        NotEnoughMemory, ///< for these contents and the text they become
        TooManySymbolicLinks,
        NameTooLong,
        InUse, ///< another program holds a lease on the file
        ReadFailed, ///< any other cause; systemError tells it
    };

    Cause cause;
    int systemError = 0; ///< errno of a ReadFailed, otherwise 0

    bool operator==(const FileError &) const = default;
};

/// The cause in English, on one line and without the name of the file, to stand behind it: "is a folder".
QString causeText(const FileError &error);
