// SPDX-License-Identifier: MIT
// OwnedDescriptor owns a file descriptor and closes it when it is destroyed.
// Thread: any, one at a time.
#pragma once

#include <utility>

#include <unistd.h>

class OwnedDescriptor {
public:
    OwnedDescriptor() = default;
    explicit OwnedDescriptor(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    OwnedDescriptor(OwnedDescriptor &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    OwnedDescriptor &operator=(OwnedDescriptor &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~OwnedDescriptor()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    [[nodiscard]] int get() const { return m_descriptor; } ///< -1 for none
    explicit operator bool() const { return m_descriptor >= 0; }

private:
    int m_descriptor = -1;
};
