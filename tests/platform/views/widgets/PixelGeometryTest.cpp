// SPDX-License-Identifier: MIT
#include "platform/views/widgets/PixelGeometry.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace {

const QRect screen(0, 0, 1280, 800);

} // namespace

TEST(PixelGeometry, RoundsHalvesUpOnBothSidesOfZero)
{
    EXPECT_EQ(roundToPixel(5.5), 6);
    EXPECT_EQ(roundToPixel(5.49), 5);
    EXPECT_EQ(roundToPixel(-5.5), -5);
    EXPECT_EQ(roundToPixel(-5.51), -6);
    EXPECT_EQ(roundToPixel(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(roundToPixel(1e300), 1 << 20);
    EXPECT_EQ(roundToPixel(-std::numeric_limits<double>::infinity()), -(1 << 20));
}

TEST(PixelGeometry, CountsFromTheTopOfTheWindow)
{
    EXPECT_EQ(pixelRectInWindow({10, 20, 30, 40}, 100), QRect(10, 40, 30, 40));
    EXPECT_EQ(pixelRectInWindow({0, 0, 100, 100}, 100), QRect(0, 0, 100, 100));
    // From 5.5 to 22.5 and from 28 to 45, with a gap of 5.5 points.
    EXPECT_EQ(pixelRectInWindow({0, 5.5, 10, 17}, 50), QRect(0, 27, 10, 17));
    EXPECT_EQ(pixelRectInWindow({0, 28, 10, 17}, 50), QRect(0, 5, 10, 17));
}

TEST(PixelGeometry, KeepsAdjacentRectanglesAdjacent)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> lengths(0, 40);
    for (int i = 0; i < 1000; ++i) {
        const QRectF lower(lengths(random) - 20, lengths(random) - 20, lengths(random), lengths(random));
        const QRectF upper(lower.x(), lower.y() + lower.height(), lower.width(), lengths(random));
        const QRectF right(lower.x() + lower.width(), lower.y(), lengths(random), lower.height());
        const QRect lowerPixels = pixelRectInWindow(lower, 100);
        const QRect upperPixels = pixelRectInWindow(upper, 100);
        EXPECT_EQ(upperPixels.y() + upperPixels.height(), lowerPixels.y());
        const QRect rightPixels = pixelRectInWindow(right, 100);
        EXPECT_EQ(lowerPixels.x() + lowerPixels.width(), rightPixels.x());
    }
}

TEST(PixelGeometry, KeepsLengthsOfWholePointsWhereverTheyBegin)
{
    for (int quarter = -20; quarter < 20; ++quarter) {
        EXPECT_EQ(pixelRectInWindow({quarter / 4.0, quarter / 4.0, 33, 17}, 100).size(), QSize(33, 17));
        EXPECT_EQ(pixelRectOnScreen({quarter / 4.0, quarter / 4.0, 33, 17}, screen).size(), QSize(33, 17));
    }
}

TEST(PixelGeometry, TheOriginIsTheBottomLeftOfThePrimaryScreen)
{
    EXPECT_EQ(pixelRectOnScreen({100, 200, 300, 150}, screen), QRect(100, 450, 300, 150));
    EXPECT_EQ(pixelRectOnScreen({0, 0, 300, 150}, QRect(1920, 40, 1280, 800)), QRect(1920, 690, 300, 150));
    EXPECT_EQ(pixelRectOnScreen({-500, -10, 300, 150}, screen), QRect(-500, 660, 300, 150));
    EXPECT_EQ(pixelRectOnScreen({0, 0, 0, 0.2}, screen).size(), QSize(1, 1));
}

TEST(PixelGeometry, ConvertsTheFrameOfAWindowBack)
{
    const QRect secondScreenBelow(0, -800, 1280, 800);
    for (const QRect &primary : {screen, secondScreenBelow}) {
        const QRectF frame(100, 200, 300, 150);
        EXPECT_EQ(frameOnScreen(pixelRectOnScreen(frame, primary), primary, {}), frame);
    }
}

TEST(PixelGeometry, KeepsTheFractionsOfWhatDidNotChange)
{
    const QRectF former(100.25, 200.5, 300.5, 150.25);
    const QRect pixels = pixelRectOnScreen(former, screen);
    EXPECT_EQ(frameOnScreen(pixels, screen, former), former);
    EXPECT_EQ(frameOnScreen(pixels.translated(10, 0), screen, former), QRectF(110, 201, 300.5, 150.25));
    // Growing at the top keeps the bottom left corner.
    EXPECT_EQ(frameOnScreen(pixels.adjusted(0, -20, 0, 0), screen, former), QRectF(100.25, 200.5, 301, 170));
    EXPECT_EQ(frameOnScreen(pixels.adjusted(0, 0, 0, 20), screen, former), QRectF(100, 181, 301, 170));
}
