// SPDX-License-Identifier: MIT
// WeakDelegate refers to a delegate without owning it, and becomes null when the delegate is destroyed.
// Thread: that of the delegate.
#pragma once

#include <memory>

/// Base of every delegate class: lets a WeakDelegate know when the delegate is destroyed.
class Delegate {
public:
    Delegate() = default;
    // A copy of an object has a lifetime of its own.
    Delegate(const Delegate &) { }
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): assigns nothing
    Delegate &operator=(const Delegate &) { return *this; }
    virtual ~Delegate() = default;

private:
    template <typename T>
    friend class WeakDelegate;

    struct Life { };
    std::shared_ptr<Life> m_life = std::make_shared<Life>();
};

/// T: a class that derives from Delegate.
template <typename T>
class WeakDelegate {
public:
    WeakDelegate() = default;
    WeakDelegate(T *delegate)
        : m_delegate(delegate)
    {
        if (delegate)
            m_life = delegate->m_life;
    }

    /// Null if there is no delegate or it was destroyed.
    [[nodiscard]] T *get() const { return m_life.expired() ? nullptr : m_delegate; }

private:
    T *m_delegate = nullptr;
    std::weak_ptr<Delegate::Life> m_life;
};
