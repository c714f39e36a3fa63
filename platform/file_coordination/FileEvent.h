// SPDX-License-Identifier: MIT
// FileEvent is one thing that the system tells of a file or of its name.
// Thread: any; a value.
#pragma once

enum class FileEvent {
    Written, ///< into it, or its length was changed
    Closed, ///< by somebody who might have written
    Replaced, ///< a file has been moved onto the name: whole, as far as its writer is concerned
    Created, ///< a file has come under the name, perhaps still without its contents
    Gone, ///< the name has gone
    FolderMoved, ///< on the way to the file a folder has moved, or a symbolic link has changed
    Unknown, ///< events have been lost; there may have been any
};
