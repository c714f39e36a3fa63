// SPDX-License-Identifier: MIT
// Whether another program holds the lock with which writers of a file keep others out.
// Thread: any.
#pragma once

#include <QByteArray>

/// Exclusive locks of flock(2), and write locks of fcntl(2) on any part of the file, count: those of a
/// process and those of an open file. Locks for reading do not, nor does anything at a path that is no
/// regular file or may not be read. Takes no lock itself but for the instant of asking: a lock held while
/// reading would fail the saves of programs that do not wait for theirs.
bool isLockedByWriter(const QByteArray &path);
