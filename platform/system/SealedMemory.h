// SPDX-License-Identifier: MIT
// SealedMemory is an immutable block of bytes in a memory file: the form in which documents of any size
// travel between processes.
// Thread: any, one at a time.  Owner: whoever holds it; it owns its descriptor and its mapping.
#pragma once

#include "platform/system/Result.h"

#include <QByteArrayView>
#include <QString>

#include <functional>

/// Why there is no block of memory.
struct SealedMemoryError {
    enum class Cause {
        NotSealed, ///< not a memory file, or one that its sender can still change
        LengthDiffers, ///< the file does not have the length that its sender claims
        SystemError, ///< see systemError
    };

    Cause cause;
    int systemError = 0; ///< errno for SystemError, otherwise 0

    bool operator==(const SealedMemoryError &) const = default;
};

/// The cause in English, on one line.
QString causeText(const SealedMemoryError &error);

class SealedMemory {
public:
    using MemoryResult = Result<SealedMemory, SealedMemoryError>;

    /// A new memory file with a copy of the bytes, sealed against writing, growing and shrinking.
    static MemoryResult copyOf(QByteArrayView bytes);
    /// Makes a memory file, lets the function write to its descriptor, and seals it. The function returns 0
    /// or an errno.
    static MemoryResult fillAndSeal(const std::function<int(int descriptor)> &fill);
    /// The block that another process sent; duplicates the descriptor. Accepts only a file that is sealed
    /// against writing and shrinking.
    static MemoryResult receive(int descriptor);
    /// The same; the file must have exactly this length in bytes.
    static MemoryResult receive(int descriptor, quint64 length);

    SealedMemory(SealedMemory &&other) noexcept;
    SealedMemory &operator=(SealedMemory &&other) noexcept;
    ~SealedMemory();

    /// Valid as long as this object; moving the object keeps the address.
    [[nodiscard]] QByteArrayView bytes() const { return {static_cast<const char *>(m_mapping), m_size}; }
    [[nodiscard]] qsizetype size() const { return m_size; }
    [[nodiscard]] int descriptor() const { return m_descriptor; }

private:
    SealedMemory(int descriptor, void *mapping, qsizetype size);
    static MemoryResult map(int descriptor);

    int m_descriptor;
    void *m_mapping; ///< null for an empty block
    qsizetype m_size;
};
