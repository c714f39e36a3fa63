// SPDX-License-Identifier: MIT
// FlatFolder finds the files in the flat form of an RTFD. It never looks into the folders among its entries,
// so that no depth of theirs matters. Thread: any; a value that refers to the bytes.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

#include <optional>

class FlatFolder {
public:
    /// Whether the bytes begin as every flat RTFD does.
    static bool hasMagic(QByteArrayView bytes);

    /// Absent where its lengths reach beyond the bytes. Of entries with equal names the first counts.
    static std::optional<FlatFolder> parsed(QByteArrayView bytes);

    enum class Kind { Missing, File, Damaged, Other };
    struct Entry {
        Kind kind = Kind::Missing;
        QByteArrayView contents; ///< of a File
    };
    [[nodiscard]] Entry entry(QByteArrayView name) const;

private:
    QHash<QByteArrayView, QByteArrayView> m_blocks; ///< by name
};
