// SPDX-License-Identifier: MIT
// FlatFolder finds the files in the flat form of an RTFD; FlatFormat names what that form consists of.
// Folders among the entries are never opened, so that their depth does not matter.
// Thread: any; a value that refers to the bytes.
//
// The form is little-endian words of 32 bits, names and contents, without gaps:
//   "rtfd", 0, block
//   block of a file: fileBlock, length, contents
//   block of a folder: folderBlock, count, then for each entry the length and the bytes of its name, then for
//     each entry the size of its block, then the blocks
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

#include <optional>

namespace FlatFormat {

inline constexpr char magic[] = "rtfd";
inline constexpr quint32 version = 0;
inline constexpr quint32 fileBlock = 1;
inline constexpr quint32 folderBlock = 3;
/// In place of a length: the length itself, a count, and as many bytes of padding follow.
inline constexpr quint32 paddedLength = 0x80000000;

/// The file that holds the RTF, in the package too.
inline constexpr char textName[] = "TXT.rtf";
/// The file that holds the modification times and permissions of the others: a word of 1, then for each of
/// them the length and the bytes of its name, attributesSize, and as many bytes: the words time, mode, 0, 0.
inline constexpr char attributesName[] = ".";
inline constexpr quint32 attributesSize = 16;

} // namespace FlatFormat

class FlatFolder {
public:
    /// Whether the bytes begin as every flat RTFD does.
    static bool hasMagic(QByteArrayView bytes);

    /// Absent where a length reaches beyond the bytes. Of entries with equal names, the first counts.
    static std::optional<FlatFolder> parse(QByteArrayView bytes);

    enum class Kind { Missing, File, Damaged, Other };
    struct Entry {
        Kind kind = Kind::Missing;
        QByteArrayView contents; ///< of a File
    };
    [[nodiscard]] Entry entry(QByteArrayView name) const;

private:
    QHash<QByteArrayView, QByteArrayView> m_blocks; ///< by name
};
