// SPDX-License-Identifier: MIT
// A hash by which a package, a folder with a document's files, is known again.
// Thread: any.
#pragma once

#include <QByteArray>

/// Of the names and contents of the files directly in the folder, symbolic links with where they lead; two
/// folders that differ in any of it have different ones. Empty where there is more than mostBytes of
/// contents, or more files than a document has.
/// path: bytes in any encoding.
QByteArray digestOfPackage(const QByteArray &path, qint64 mostBytes);
