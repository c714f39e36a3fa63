// SPDX-License-Identifier: MIT
// ContentHash identifies contents by 128 bits. The hash is keyed with random numbers of this process, so that
// nobody can prepare contents that have the same one; hashes of different processes cannot be compared.
// Thread: any.
#pragma once

#include <QByteArrayView>
#include <QtGlobal>

#include <cstddef>

struct ContentHash {
    quint64 low = 0;
    quint64 high = 0;

    bool operator==(const ContentHash &) const = default;
};

/// Runs at the speed of memory. before: the hash of what comes before these bytes, whose length counts too:
/// "ab" behind "c" differs from "b" behind "ca".
[[nodiscard]] ContentHash contentHash(QByteArrayView bytes, const ContentHash &before = {});

template <>
struct std::hash<ContentHash> {
    size_t operator()(const ContentHash &content) const noexcept { return content.low; }
};
