// SPDX-License-Identifier: MIT
#include "platform/views/widgets/PixelGeometry.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace {

// Beyond the 16-bit coordinates of X11; sums of two still fit into an int.
constexpr double maxCoordinate = 1 << 20;

int bottomOf(const QRect &screen)
{
    return screen.y() + screen.height();
}

} // namespace

int roundToPixel(double points)
{
    if (std::isnan(points))
        return 0;
    return static_cast<int>(std::floor(std::clamp(points, -maxCoordinate, maxCoordinate) + 0.5));
}

QRect pixelRectInWindow(const QRectF &rect, int windowHeight)
{
    const int left = roundToPixel(rect.x());
    const int right = roundToPixel(rect.x() + rect.width());
    const int bottom = roundToPixel(rect.y());
    const int top = roundToPixel(rect.y() + rect.height());
    return {left, windowHeight - top, right - left, top - bottom};
}

QRect primaryScreenRect()
{
    return QGuiApplication::primaryScreen()->geometry();
}

QRect pixelRectOnScreen(const QRectF &frame, const QRect &primaryScreen)
{
    // A window on the screen has at least one pixel.
    const int width = std::max(1, roundToPixel(frame.width()));
    const int height = std::max(1, roundToPixel(frame.height()));
    return {primaryScreen.x() + roundToPixel(frame.x()),
        bottomOf(primaryScreen) - roundToPixel(frame.y()) - height, width, height};
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
