// SPDX-License-Identifier: MIT
#include "platform/views/Controls.h"
#include "tests/platform/views/widgets/ShownWindow.h"

#include <QCursor>

namespace {

/// Presses the left button at the pointer and drags the window by 120 points to the right and 40 up, as far
/// as it moves.
void drag(const ShownWindow &shown, double x, double y)
{
    TestDisplay::xdotool(
        shown.pointerTo(x, y) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")});
    QStringList steps;
    for (int i = 0; i < 12; ++i) {
        steps += {QStringLiteral("mousemove_relative"), QStringLiteral("--"), QStringLiteral("10"),
            i % 3 == 0 ? QStringLiteral("-10") : QStringLiteral("0"), QStringLiteral("sleep"),
            QStringLiteral("0.02")};
        TestDisplay::xdotool(steps.mid(qsizetype{i} * 6));
        QCoreApplication::processEvents();
    }
    TestDisplay::xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

} // namespace

TEST(WindowDrag, MovesTheWindowByItsBackgroundOrALabel)
{
    ShownWindow shown({100, 200, 300, 150});
    shown.add<Label>("label", {50, 50, 200, 20}).setStringValue(QStringLiteral("1,234 words"));
    shown.window().setMovableByBackground(true);
    shown.show();
    const std::vector<std::pair<double, double>> places{{20, 20}, {60, 60}};
    for (const auto &[x, y] : places) {
        const QRectF before = shown.window().frame();
        drag(shown, x, y);
        EXPECT_TRUE(waitUntil([&] { return shown.window().frame().x() > before.x() + 50; }))
            << x << " " << y << ": " << shown.window().frame().x();
        EXPECT_TRUE(waitUntil([&] { return shown.window().frame() == shown.frameOnDisplay(); }));
        EXPECT_GT(shown.window().frame().y(), before.y());
        EXPECT_EQ(shown.window().frame().size(), before.size());
    }
}

TEST(WindowDrag, DoesNotMoveAWindowThatIsNotMovable)
{
    ShownWindow shown({100, 200, 300, 150});
    shown.show();
    drag(shown, 20, 20);
    // A move would have arrived before the reply to this request.
    shown.window().setFrame({100, 200, 301, 150}, false, false);
    EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay() == QRectF(100, 200, 301, 150); }));
}

TEST(WindowDrag, AButtonDoesNotMoveTheWindow)
{
    ShownWindow shown({100, 200, 300, 150});
    shown.add<Button>("button", {50, 50, 100, 30}).setTitle(QStringLiteral("Count"));
    shown.window().setMovableByBackground(true);
    shown.show();
    drag(shown, 60, 60);
    shown.window().setFrame({100, 200, 301, 150}, false, false);
    EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay() == QRectF(100, 200, 301, 150); }));
}

TEST(WindowDrag, AWindowMovedDirectlyAfterAChangeKeepsItsPlaceAtTheNextChange)
{
    ShownWindow shown({100, 200, 300, 150});
    shown.show();
    const auto resize = [&](double height) {
        shown.window().setFrame({shown.window().frame().topLeft(), QSizeF(300, height)}, true, false);
    };
    EXPECT_TRUE(waitUntil([&] {
        resize(170);
        TestDisplay::xdotool(
            {QStringLiteral("windowmove"), shown.identifier(), QStringLiteral("500"), QStringLiteral("50")});
        return waitUntil([&] { return shown.widget().windowHandle()->x() == 500; });
    }));
    resize(180);
    EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay().height() == 180; }));
    EXPECT_EQ(shown.frameOnDisplay(), QRectF(500, 800 - 50 - 170, 300, 180)) << shown.describe();
    EXPECT_EQ(shown.window().frame(), QRectF(500, 800 - 50 - 170, 300, 180));
}

TEST(WindowDrag, AWindowThatChangesDuringADragStaysWhereItIsDropped)
{
    for (const double height : {400.0, 60.0}) {
        ShownWindow shown({100, 200, 300, 150});
        shown.window().setMovableByBackground(true);
        shown.show();
        TestDisplay::xdotool(
            shown.pointerTo(20, 20) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")});
        const auto draw = [&] {
            const double before =
                shown.frameOnDisplay().x(); // the program may receive the place only at the end
            EXPECT_TRUE(waitUntil([&] {
                TestDisplay::xdotool({QStringLiteral("mousemove_relative"), QStringLiteral("--"),
                    QStringLiteral("10"), QStringLiteral("-4")});
                return shown.frameOnDisplay().x() > before + 80;
            }));
        };
        draw();
        shown.window().setFrame({shown.window().frame().topLeft(), QSizeF(300, height)}, true, false);
        draw();
        TestDisplay::xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
        EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay().height() == height; }));
        EXPECT_TRUE(waitUntil([&] { return shown.window().frame() == shown.frameOnDisplay(); }))
            << shown.describe();
        // The pointer has its former place in the window, apart from the drag distance.
        const QPoint pointer = QCursor::pos();
        const QRectF frame = shown.window().frame();
        EXPECT_NEAR(pointer.x() - frame.x(), 20, 40) << height;
        EXPECT_NEAR(800 - pointer.y() - frame.y(), 20, 40) << height;
    }
}
