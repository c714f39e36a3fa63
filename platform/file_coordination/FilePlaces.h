// SPDX-License-Identifier: MIT
// What follows from where a file lies: whether it has been thrown away, and whether the system tells of its
// changes. Thread: any.
#pragma once

#include <QByteArray>

/// Whether the path is in a trash folder of this user (Trash 1.0 of freedesktop.org): the home
/// trash, or that of a file system, .Trash/UID or .Trash-UID. path: absolute.
bool isInTrash(const QByteArray &path);

/// Whether the file is on a file system that others can change without this machine's system noticing: of the
/// network, in user space (FUSE), shared with a host, or made up by the system as it is read.
bool changesUnnoticed(const QByteArray &path);
