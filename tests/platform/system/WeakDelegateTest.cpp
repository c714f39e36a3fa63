// SPDX-License-Identifier: MIT
#include "platform/system/WeakDelegate.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

class Listener : public Delegate { };

} // namespace

TEST(WeakDelegate, IsNullAtFirstAndAfterReset)
{
    Listener listener;
    EXPECT_EQ(WeakDelegate<Listener>().get(), nullptr);
    EXPECT_EQ(WeakDelegate<Listener>(nullptr).get(), nullptr);
    EXPECT_EQ(WeakDelegate<Listener>(&listener).get(), &listener);
}

TEST(WeakDelegate, IsNullAfterTheDelegateIsDestroyed)
{
    std::optional<Listener> listener(std::in_place);
    const WeakDelegate<Listener> reference(&*listener);
    EXPECT_EQ(reference.get(), &*listener);
    listener.reset();
    EXPECT_EQ(reference.get(), nullptr);
}

TEST(WeakDelegate, ACopyHasALifetimeOfItsOwn)
{
    std::optional<Listener> listener(std::in_place);
    Listener copy(*listener);
    copy = *listener;
    const WeakDelegate<Listener> reference(&copy);
    listener.reset();
    EXPECT_EQ(reference.get(), &copy);
}
