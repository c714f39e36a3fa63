// SPDX-License-Identifier: MIT
// File names as bytes, which on Linux need not be UTF-8, and the forms in which they are shown and listed.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

/// For a terminal: control characters as "\x1b", bytes that are no UTF-8 as U+FFFD.
QByteArray printableName(const QByteArray &name);

/// For a column of a TSV file: backslash, tab, LF and CR as "\\", "\t", "\n" and "\r"; else as
/// printableName() but for its control characters, which stay.
QByteArray tsvName(const QByteArray &name);

/// As a JSON string with its quotes.
QByteArray jsonName(const QByteArray &name);

/// The names in a list: separated by NUL bytes if there is one in it, else by LF; empty names are left out.
QByteArrayList namesInList(const QByteArray &list);
