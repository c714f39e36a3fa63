// SPDX-License-Identifier: MIT
#include "platform/views/widgets/PixelGeometry.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace {

// The coordinates of X11 have 16 bits; sums of two of these still fit into an int.
constexpr double farthest = 1 << 20;

int bottomOf(const QRect &screen)
{
    return screen.y() + screen.height();
}

} // namespace

int roundedToPixel(double points)
{
    if (std::isnan(points))
        return 0;
    return int(std::floor(std::clamp(points, -farthest, farthest) + 0.5));
}

QRect pixelRectInWindow(const QRectF &rect, int windowHeight)
{
    const int left = roundedToPixel(rect.x());
    const int right = roundedToPixel(rect.x() + rect.width());
    const int bottom = roundedToPixel(rect.y());
    const int top = roundedToPixel(rect.y() + rect.height());
    return {left, windowHeight - top, right - left, top - bottom};
}

QRect primaryScreenRect()
{
    return QGuiApplication::primaryScreen()->geometry();
}

QRect pixelRectOnScreen(const QRectF &frame, const QRect &primaryScreen)
{
    // A window of the screen has at least one pixel.
    const int width = std::max(1, roundedToPixel(frame.width()));
    const int height = std::max(1, roundedToPixel(frame.height()));
    return {primaryScreen.x() + roundedToPixel(frame.x()),
        bottomOf(primaryScreen) - roundedToPixel(frame.y()) - height, width, height};
}

QRectF frameOnScreen(const QRect &pixels, const QRect &primaryScreen, const QRectF &former)
{
    const QRect formerPixels = pixelRectOnScreen(former, primaryScreen);
    const QPoint corner(
        pixels.x() - primaryScreen.x(), bottomOf(primaryScreen) - pixels.y() - pixels.height());
    const bool isCornerKept =
        pixels.x() == formerPixels.x() && pixels.y() + pixels.height() == bottomOf(formerPixels);
    const bool isSizeKept = pixels.size() == formerPixels.size();
    return {isCornerKept ? former.topLeft() : QPointF(corner),
        isSizeKept ? former.size() : QSizeF(pixels.size())};
}
