// SPDX-License-Identifier: MIT
// SealedMemory is a block of bytes in a memory file that nobody can change any more: the form in which
// documents travel between processes, whatever their size. Thread: any; one at a time.  Owner: whoever holds
// it; owns its descriptor and its mapping.
#pragma once

#include "platform/system/Result.h"

#include <QByteArrayView>
#include <QString>

#include <functional>

/// Why there is no block.
struct SealedMemoryError {
    enum class Cause {
        NotSealed, ///< the descriptor is no memory file, or one that its sender can still change
        LengthDiffers, ///< the file is not as long as was said
        SystemError, ///< systemError tells it
    };

    Cause cause;
    int systemError = 0; ///< errno of a SystemError, otherwise 0

    bool operator==(const SealedMemoryError &) const = default;
};

/// The cause in English, on one line.
QString causeText(const SealedMemoryError &error);

class SealedMemory {
public:
    using MadeMemory = Result<SealedMemory, SealedMemoryError>;

    /// A new memory file with a copy of the bytes, sealed against writing, growing and shrinking.
    static MadeMemory copyOf(QByteArrayView bytes);
    /// A new memory file, filled by the function through the open descriptor, and then sealed. The function
    /// returns 0, or the errno of what failed.
    static MadeMemory filledBy(const std::function<int(int descriptor)> &fill);
    /// The block that another process sent; takes a descriptor of its own. Only a file that is sealed against
    /// writing and shrinking is taken.
    static MadeMemory received(int descriptor);
    /// The same, only where it is exactly as long as said.
    static MadeMemory received(int descriptor, quint64 length);

    SealedMemory(SealedMemory &&other) noexcept;
    SealedMemory &operator=(SealedMemory &&other) noexcept;
    ~SealedMemory();

    /// Lives as long as this object; stays where it is when the object is moved.
    [[nodiscard]] QByteArrayView bytes() const { return {static_cast<const char *>(m_mapping), m_size}; }
    [[nodiscard]] qsizetype size() const { return m_size; }
    [[nodiscard]] int descriptor() const { return m_descriptor; }

private:
    SealedMemory(int descriptor, void *mapping, qsizetype size);
    static MadeMemory mapped(int descriptor);

    int m_descriptor;
    void *m_mapping; ///< null for an empty block
    qsizetype m_size;
};
