// SPDX-License-Identifier: MIT
// File names as bytes, which on Linux need not be UTF-8, and the forms in which they are shown and listed.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

// What controls a terminal stands raw in none of these forms: control characters of ASCII and the 32 behind
// it (C1), line and paragraph separators, and what turns the direction of writing.

/// For a terminal, and for any message that may hold a name: such characters as "\x1b" or "\u202e", bytes
/// that are no UTF-8 as U+FFFD.
QByteArray printableName(const QByteArray &name);

/// For a column of a TSV file, from which the name can be had back byte by byte: backslash, tab, LF and CR as
/// "\\", "\t", "\n" and "\r", each byte of such characters, and of what is no UTF-8, as "\x1b".
QByteArray tsvName(const QByteArray &name);

/// As a JSON string with its quotes, in which such characters are "\u001b"; bytes that are no UTF-8 as
/// U+FFFD.
QByteArray jsonName(const QByteArray &name);

/// The names in a list: separated by NUL bytes if there is one in it, else by LF; empty names are left out.
QByteArrayList namesInList(const QByteArray &list);
