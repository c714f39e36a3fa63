// SPDX-License-Identifier: MIT
// FlatBytes assembles flat RTFDs word by word, valid ones and damaged ones.
// Thread: any.
#pragma once

#include <QByteArray>

#include <initializer_list>
#include <utility>

namespace FlatBytes {

QByteArray word(quint32 value);
/// The bytes after their length.
QByteArray withLength(const QByteArray &bytes);
/// The bytes after their length in the long form, with so many bytes of padding.
QByteArray withPaddedLength(const QByteArray &bytes, quint32 padding);

using Entries = std::initializer_list<std::pair<QByteArray, QByteArray>>;

/// Blocks for the entries of a folder.
QByteArray file(const QByteArray &contents);
/// entries: names and blocks.
QByteArray folder(const Entries &entries);

QByteArray rtfd(const Entries &entries);

} // namespace FlatBytes
