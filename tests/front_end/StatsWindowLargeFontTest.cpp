// SPDX-License-Identifier: MIT
// The statistics window on the private display in a large font.
#include "front_end/QBYServiceProviderShowStatsWindowController.h"
#include "platform/views/widgets/WidgetDesktop.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/harness/Screenshot.h"
#include "tests/platform/session_bus/ServiceStandIn.h"
#include "tests/presentation/StatsPanel.h"

#include <QApplication>
#include <QScopeGuard>

TEST(StatsWindowInALargeFont, HasATitleRowAndALineAsWideAsTheWindow)
{
    const QFont before = QApplication::font();
    const auto restore = qScopeGuard([&] { QApplication::setFont(before); });
    QFont large = before;
    large.setPointSize(15);
    QApplication::setFont(large);
    preferOnly(everyStatistic);
    const ServiceStandIn service(WordCounterServiceProtocol::serviceName(),
        {"answer 1234567 12345678 12345678 1234567 1234567 1234567 1234567 1234567"});
    WidgetDesktop desktop;
    const auto controller = std::make_shared<QBYServiceProviderShowStatsWindowController>(
        AttributedString(QStringLiteral("A text.")), desktop);
    controller->showWindow(nullptr);
    EXPECT_TRUE(waitUntil([&] { return !controller->activityIndicator()->isAnimating(); }));

    const QSizeF size = controller->window()->frame().size();
    EXPECT_GT(size.width(), 240) << "the labels need more than the window's initial width";
    EXPECT_EQ(controller->wordCounterViewController()->view()->frame().width(), size.width());
    EXPECT_EQ(controller->lineSeparator()->frame().width(), size.width());
    const QRectF close = controller->closeButton()->frame();
    EXPECT_EQ(close.x() + close.width(), size.width());
    const QRectF title = controller->titleLabel()->frame();
    EXPECT_EQ(title.x() + title.width(), close.x());
    EXPECT_EQ(title.y() + title.height() + 3, size.height());
    // Waits until the statistics have faded in: black on the window's background.
    EXPECT_TRUE(waitUntil([&] {
        const QRectF frame = controller->window()->frame();
        const QImage image = saveScreenshot(QStringLiteral("stats-window-large-font"));
        const QRect panel(int(frame.x()), int(image.height() - frame.y() - frame.height()) + 35,
            int(frame.width()), int(frame.height()) - 40);
        for (int y = panel.top(); y < panel.bottom(); ++y) {
            for (int x = panel.left(); x < panel.right(); ++x) {
                if (image.rect().contains(x, y) && image.pixelColor(x, y).lightness() < 30)
                    return true;
            }
        }
        return false;
    }));
    controller->closeButtonAction(nullptr);
}
