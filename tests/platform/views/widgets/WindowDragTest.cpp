// SPDX-License-Identifier: MIT
#include "platform/views/Button.h"
#include "platform/views/Label.h"
#include "tests/platform/views/widgets/ShownWindow.h"

namespace {

/// Presses the first button at the pointer and draws the window by 120 points to the right and 40 up, as far
/// as it comes.
void drag(const ShownWindow &shown, double x, double y)
{
    TestDisplay::xdotool(
        shown.pointerTo(x, y) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")});
    QStringList steps;
    for (int i = 0; i < 12; ++i) {
        steps += {QStringLiteral("mousemove_relative"), QStringLiteral("--"), QStringLiteral("10"),
            i % 3 == 0 ? QStringLiteral("-10") : QStringLiteral("0"), QStringLiteral("sleep"),
            QStringLiteral("0.02")};
        TestDisplay::xdotool(steps.mid(i * 6));
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

TEST(WindowDrag, StaysWhereItIsNotMovable)
{
    ShownWindow shown({100, 200, 300, 150});
    shown.show();
    drag(shown, 20, 20);
    // Any move would have come before the answer to a request of ours.
    shown.window().setFrame({100, 200, 301, 150}, false, false);
    EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay() == QRectF(100, 200, 301, 150); }));
}

TEST(WindowDrag, AButtonIsNoBackground)
{
    ShownWindow shown({100, 200, 300, 150});
    shown.add<Button>("button", {50, 50, 100, 30}).setTitle(QStringLiteral("Count"));
    shown.window().setMovableByBackground(true);
    shown.show();
    drag(shown, 60, 60);
    shown.window().setFrame({100, 200, 301, 150}, false, false);
    EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay() == QRectF(100, 200, 301, 150); }));
}
