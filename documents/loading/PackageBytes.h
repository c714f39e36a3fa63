// SPDX-License-Identifier: MIT
// All bytes of a package, a folder with a document's files, by which it is known again.
// Thread: any.
#pragma once

#include <QByteArray>

#include <optional>

/// The names and contents of the files directly in the folder, symbolic links with where they lead; two
/// folders that differ in any of it have different ones. Absent where the contents have more than mostBytes
/// together, or where there are more files than a document has.
/// path: bytes in any encoding.
std::optional<QByteArray> bytesOfPackage(const QByteArray &path, qint64 mostBytes);
