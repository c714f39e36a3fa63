// SPDX-License-Identifier: MIT
// FlatFormat names what the flat form of an RTFD consists of: little-endian words of 32 bits, names and
// contents, one right behind the other.
//   "rtfd", 0, block
//   block of a file: fileBlock, length, contents
//   block of a folder: folderBlock, count, then for each entry the length and the bytes of its name, then for
//     each entry the size of its block, then the blocks
// Thread: any.
#pragma once

#include <QtGlobal>

namespace FlatFormat {

inline constexpr char magic[] = "rtfd";
inline constexpr quint32 version = 0;
inline constexpr quint32 fileBlock = 1;
inline constexpr quint32 folderBlock = 3;
/// In place of a length: behind it come the length itself, a count, and as many bytes of padding.
inline constexpr quint32 paddedLength = 0x80000000;

/// The file that holds the RTF, in the package too.
inline constexpr char textName[] = "TXT.rtf";
/// The file that holds the modification times and permissions of the others: a word of 1, then for each of
/// them the length and the bytes of its name, attributesSize, and as many bytes of words: time, mode, 0, 0.
inline constexpr char attributesName[] = ".";
inline constexpr quint32 attributesSize = 16;

} // namespace FlatFormat
