// SPDX-License-Identifier: MIT
// FlatBytes puts flat RTFDs together word by word, honest ones and others.
// Thread: any.
#pragma once

#include <QByteArray>

#include <initializer_list>
#include <utility>

namespace FlatBytes {

QByteArray word(quint32 value);
/// With its length in front.
QByteArray counted(const QByteArray &bytes);
/// With its length in front in the long form, so many zeros behind it.
QByteArray padded(const QByteArray &bytes, quint32 padding);

using Entries = std::initializer_list<std::pair<QByteArray, QByteArray>>;

/// Blocks, to be entries of a folder.
QByteArray file(const QByteArray &contents);
/// entries: names and blocks.
QByteArray folder(const Entries &entries);

QByteArray rtfd(const Entries &entries);

} // namespace FlatBytes
