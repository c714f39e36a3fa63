// SPDX-License-Identifier: MIT
// FileDescriptor owns an open descriptor of the system, or none, and closes it.
// Thread: any; a value that moves.
#pragma once

#include <unistd.h>

#include <utility>

class FileDescriptor {
public:
    FileDescriptor() = default;
    /// descriptor: negative for none, as the system reports a failure.
    explicit FileDescriptor(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    [[nodiscard]] int get() const { return m_descriptor; }
    explicit operator bool() const { return m_descriptor >= 0; }

private:
    int m_descriptor = -1;
};
