// SPDX-License-Identifier: MIT
#include "common_views/WindowPlacement.h"

#include <gtest/gtest.h>

namespace {

constexpr QRectF area(100, 50, 1000, 700); // 100 to 1100, 50 to 750

} // namespace

TEST(WindowPlacement, IsCentredBelowThePointer)
{
    EXPECT_EQ(originBesidePointer({200, 100}, {600, 400}, area), QPointF(500, 400 - 16 - 100));
}

TEST(WindowPlacement, StaysInTheArea)
{
    EXPECT_EQ(originBesidePointer({200, 100}, {0, 0}, area), QPointF(100, 50));
    EXPECT_EQ(originBesidePointer({200, 100}, {5000, 5000}, area), QPointF(900, 650));
}

TEST(WindowPlacement, ShowsTheTopLeftCornerOfAWindowThatIsTooLarge)
{
    EXPECT_EQ(originBesidePointer({2000, 900}, {600, 400}, area), QPointF(100, 750 - 900));
}
