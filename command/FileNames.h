// SPDX-License-Identifier: MIT
// File names as bytes, which on Linux need not be UTF-8, and the formats in which they are printed, listed
// and handed over.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

// All three formats escape what controls a terminal: the control characters of ASCII and C1, line and
// paragraph separators, and the controls of the writing direction.

/// For a terminal, and for any message that contains a name: those characters become "\x1b" or "\u202e", and
/// bytes that are not valid UTF-8 become U+FFFD.
QByteArray printableName(const QByteArray &name);

/// For a column of a TSV file; reversible: backslash, tab, LF and CR become "\\", "\t", "\n" and "\r"; every
/// byte of the other characters, and every byte that is not valid UTF-8, becomes "\x1b".
QByteArray tsvName(const QByteArray &name);

/// A JSON string with its quotes: those characters become "\u001b", and bytes that are not valid UTF-8 become
/// U+FFFD.
QByteArray jsonName(const QByteArray &name);

/// The members of a JSON object that name a file: "file", and, if the name is not valid UTF-8, "url" with the
/// percent-encoded bytes of its absolute path (RFC 8089), so that no two files have the same members.
QByteArray jsonFileMembers(const QByteArray &name);

/// The names in a list: separated by NUL bytes if it contains any, otherwise by LF. Empty names are skipped.
QByteArrayList namesInList(const QByteArray &list);

/// Of the operands of a command that desktops start: those that begin with "file:///" are URLs and become
/// paths.
QByteArrayList namesOfOperands(const QByteArrayList &operands);

/// A line of a list of URLs (RFC 2483) for a file, by its absolute path without empty and "." components.
QByteArray urlLineOfFile(const QByteArray &name);
