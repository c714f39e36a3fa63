// SPDX-License-Identifier: MIT
// ZipWriter writes ZIP archives, valid and invalid ones.
// Thread: any; values.
#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

/// The CRC-32 that ZIP uses.
quint32 zipChecksum(const QByteArray &bytes);

class ZipWriter {
public:
    enum class Method { Stored, Deflated };
    struct Entry {
        QByteArray name = {};
        QByteArray contents = {};
        Method method = Method::Stored;
        std::optional<quint32> claimedLength = std::nullopt; ///< a false length of the contents
        bool isEncrypted = false; ///< sets the flag only
    };

    void add(const Entry &entry) { m_entries.push_back(entry); }
    void removeLast() { m_entries.pop_back(); }
    [[nodiscard]] QByteArray archive() const;

private:
    std::vector<Entry> m_entries;
};
