// SPDX-License-Identifier: MIT
#include "platform/views/widgets/WindowPlaces.h"
#include "platform/views/widgets/WidgetDesktop.h"
#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/platform/views/widgets/ShownWindow.h"

#include <QMessageBox>

namespace {

const QRect area(0, 30, 1280, 770); // below a panel
constexpr QSize size(230, 272);
constexpr int step = WindowPlaces::cascadeStep;

QList<QRect> cascadeOf(qsizetype number, const QRect &wanted)
{
    QList<QRect> places;
    while (places.size() < number)
        places.append({WindowPlaces::freePlace(wanted, places, area), wanted.size()});
    return places;
}

} // namespace

TEST(WindowPlaces, AWindowIsPlacedWhereItsOwnerWantsItIfItHidesNoOther)
{
    const QRect wanted({500, 300}, size);
    EXPECT_EQ(WindowPlaces::freePlace(wanted, {}, area), wanted.topLeft());
    EXPECT_EQ(WindowPlaces::freePlace(wanted, {wanted.translated(0, 40)}, area), wanted.topLeft());
    EXPECT_EQ(WindowPlaces::freePlace(wanted, {wanted.adjusted(-20, -20, 20, 20)}, area), wanted.topLeft())
        << "the other one is larger";
}

TEST(WindowPlaces, AWindowThatWouldHideAnotherIsShifted)
{
    const QRect wanted({500, 300}, size);
    const QPoint next = wanted.topLeft() + QPoint(step, step);
    EXPECT_EQ(WindowPlaces::freePlace(wanted, {wanted}, area), next);
    EXPECT_EQ(WindowPlaces::freePlace(wanted, {wanted.translated(3, -3)}, area), next);
    EXPECT_EQ(WindowPlaces::freePlace(wanted, {QRect(510, 310, 20, 20)}, area), next) << "a smaller one";
}

TEST(WindowPlaces, ACascadeStaysInTheWorkAreaAndHidesNoWindow)
{
    const QList<QRect> places = cascadeOf(100, QRect({525, 264}, size));
    for (qsizetype i = 0; i < places.size(); ++i) {
        EXPECT_TRUE(area.contains(places[i])) << i;
        for (qsizetype j = 0; j < i; ++j) {
            const QPoint distance = places[i].topLeft() - places[j].topLeft();
            EXPECT_GE(std::max(std::abs(distance.x()), std::abs(distance.y())), step / 2) << i << " " << j;
        }
    }
}

TEST(WindowPlaces, WithoutAnyFreePlaceAWindowIsPlacedWhereItsOwnerWantsIt)
{
    const QRect huge(-10, -10, 2000, 1000);
    EXPECT_EQ(cascadeOf(3, huge), QList<QRect>({huge, huge, huge}));
}

TEST(WindowPlaces, AWindowGrowsOverNoEdge)
{
    const QRect former(1000, 100, 200, 100);
    EXPECT_EQ(WindowPlaces::keptInside({1000, 50, 210, 150}, former, area), QRect(1000, 50, 210, 150));
    EXPECT_EQ(WindowPlaces::keptInside({1000, 0, 200, 200}, former, area), QRect(1000, 30, 200, 200));
    EXPECT_EQ(WindowPlaces::keptInside({1000, 100, 300, 100}, former, area), QRect(980, 100, 300, 100));
    EXPECT_EQ(WindowPlaces::keptInside({1000, 100, 1500, 100}, former, area), QRect(0, 100, 1500, 100))
        << "the title's beginning stays visible";
}

TEST(WindowPlaces, WhatTheUserHasMovedOutsideMayStayThere)
{
    const QRect former(-50, 10, 200, 100);
    EXPECT_EQ(WindowPlaces::keptInside({-50, 10, 220, 100}, former, area), QRect(-50, 10, 220, 100));
    EXPECT_EQ(WindowPlaces::keptInside({-50, -40, 200, 150}, former, area), QRect(-50, 10, 200, 150));
}

TEST(WindowCascade, WindowsOnOnePlaceAreShiftedAndTheirFramesFollow)
{
    const ShownWindow first({525, 264, 230, 272});
    const ShownWindow second({525, 264, 230, 272});
    const ShownWindow third({525, 264, 230, 272});
    first.show();
    second.show();
    third.show();
    EXPECT_EQ(first.frameOnDisplay(), QRectF(525, 264, 230, 272));
    EXPECT_EQ(second.frameOnDisplay(), QRectF(525 + step, 264 - step, 230, 272));
    EXPECT_EQ(third.frameOnDisplay(), QRectF(525 + 2 * step, 264 - 2 * step, 230, 272));
}

TEST(WindowCascade, APlaceIsFreeAgainOnceItsWindowIsClosed)
{
    const ShownWindow first({525, 264, 230, 272});
    const ShownWindow second({525, 264, 230, 272});
    first.show();
    first.window().close();
    second.show();
    EXPECT_EQ(second.frameOnDisplay(), QRectF(525, 264, 230, 272));
    second.show();
    EXPECT_EQ(second.frameOnDisplay(), QRectF(525, 264, 230, 272)) << "a window does not hide itself";
}

TEST(WindowCascade, AWindowThatGrowsStaysOnTheScreen)
{
    const ShownWindow shown({1040, 600, 230, 190});
    shown.show();
    shown.window().setFrame({1040, 600, 260, 272}, true, false);
    EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay() == QRectF(1020, 528, 260, 272); }))
        << shown.describe();
    EXPECT_EQ(shown.window().frame(), QRectF(1020, 528, 260, 272));
    EXPECT_EQ(shown.content().frame().size(), QSizeF(260, 272));
}

TEST(WindowCascade, AlertsThatWaitAreAllVisible)
{
    FakeClock clock;
    WidgetDesktop desktop(clock);
    for (const char *const file : {"a.txt", "b.txt", "c.txt"})
        desktop.runAlert({.messageText = QStringLiteral("Failed to load text."),
                             .informativeText = {},
                             .buttons = {QStringLiteral("Close")},
                             .windowTitle = QString::fromLatin1(file)},
            [](int) {});
    QList<QPoint> corners;
    for (const QWidget *const window : QApplication::topLevelWidgets()) {
        if (qobject_cast<const QMessageBox *>(window))
            corners.append(window->pos());
    }
    std::ranges::sort(corners, {}, &QPoint::x);
    ASSERT_EQ(corners.size(), 3);
    EXPECT_EQ(corners[1] - corners[0], QPoint(step, step));
    EXPECT_EQ(corners[2] - corners[1], QPoint(step, step));
}
