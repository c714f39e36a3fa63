// SPDX-License-Identifier: MIT
#include "platform/views/widgets/WindowPlaces.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cstdlib>

namespace {

/// Whether a window at the place leaves nothing of the other window visible, or so little that the two look
/// like one.
bool hides(const QRect &place, const QRect &other)
{
    const QPoint distance = place.topLeft() - other.topLeft();
    constexpr int nearby = WindowPlaces::cascadeStep / 2;
    return place.contains(other) || (std::abs(distance.x()) < nearby && std::abs(distance.y()) < nearby);
}

/// start + distance, counted from first and starting there again after size; start if the size leaves no
/// choice.
int wrapped(int start, int distance, int first, int size)
{
    if (size <= 0 || start < first || start >= first + size)
        return start;
    return first + (start - first + distance) % size;
}

qint64 overlap(const QRect &one, const QRect &other)
{
    const QRect common = one & other;
    return common.isEmpty() ? 0 : static_cast<qint64>(common.width()) * common.height();
}

} // namespace

QPoint WindowPlaces::freePlace(const QRect &wanted, const QList<QRect> &others, const QRect &workArea)
{
    const auto isFree = [&](const QPoint &corner) {
        return std::ranges::none_of(
            others, [&](const QRect &other) { return hides(QRect(corner, wanted.size()), other); });
    };
    // Each of the others takes a few places only.
    const auto maxTries = static_cast<int>(8 * (others.size() + 1));
    for (int i = 0; i < maxTries; ++i) {
        const int distance = i * cascadeStep;
        const QPoint corner(
            wrapped(wanted.x(), distance, workArea.x(), workArea.width() - wanted.width() + 1),
            wrapped(wanted.y(), distance, workArea.y(), workArea.height() - wanted.height() + 1));
        if (isFree(corner))
            return corner;
    }
    return wanted.topLeft();
}

QRect WindowPlaces::keptInside(const QRect &grown, const QRect &former, const QRect &workArea)
{
    const int top = std::min(former.top(), workArea.top());
    const int right = std::max(former.right(), workArea.right());
    const int left = std::min(former.left(), workArea.left());
    QRect kept = grown;
    if (kept.top() < top)
        kept.moveTop(top);
    if (kept.right() > right)
        kept.moveRight(right);
    // Too wide for the screen: the beginning of the title is what the user needs.
    if (kept.left() < left)
        kept.moveLeft(left);
    return kept;
}

QList<QRect> WindowPlaces::placesOfWindows(const QWidget &except)
{
    QList<QRect> places;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *const window : windows) {
        const Qt::WindowType type = window->windowType();
        const bool isWindow = type == Qt::Window || type == Qt::Dialog;
        if (window != &except && isWindow && window->isVisible() && !window->isMinimized())
            places.append(window->geometry());
    }
    return places;
}

QRect WindowPlaces::workAreaAround(const QRect &rect)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    const QScreen *const screen = *std::ranges::max_element(
        screens, {}, [&](const QScreen *known) { return overlap(known->geometry(), rect); });
    return screen->availableGeometry();
}
