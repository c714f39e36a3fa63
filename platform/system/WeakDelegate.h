// SPDX-License-Identifier: MIT
// WeakDelegate refers to a delegate without owning it, and to nothing once the delegate's life is over.
// Thread: that of the delegate.
#pragma once

#include <memory>

/// Base of every delegate class: it makes the end of a delegate's life known.
class Delegate {
public:
    Delegate() = default;
    // A life is not copied with the rest of an object.
    Delegate(const Delegate &) { }
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

    /// Null where there is no delegate or its life is over.
    [[nodiscard]] T *get() const { return m_life.expired() ? nullptr : m_delegate; }

private:
    T *m_delegate = nullptr;
    std::weak_ptr<Delegate::Life> m_life;
};
