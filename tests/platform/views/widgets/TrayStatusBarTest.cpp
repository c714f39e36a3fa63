// SPDX-License-Identifier: MIT
// Status items on a desktop without a tray, and their icons; tests/watching/windows has a tray.
#include "platform/views/widgets/TrayStatusBar.h"

#include "platform/views/widgets/SymbolIcon.h"
#include "tests/harness/QuillbayTest.h"

#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <QSystemTrayIcon>

TEST(TrayStatusBar, IsInvisibleOnADesktopWithoutATray)
{
    ASSERT_FALSE(QSystemTrayIcon::isSystemTrayAvailable());
    TrayStatusBar bar;
    const auto item = std::make_shared<StatusItem>();
    item->setImageName(QStringLiteral("MenubarIcon"));
    auto shown = bar.addItem(item);
    ASSERT_TRUE(shown);
    item->setToolTip(QStringLiteral("novel.txt"));
    QCoreApplication::processEvents();
    EXPECT_FALSE(item->buttonFrame());
    shown.reset();
    EXPECT_EQ(item.use_count(), 1);
}

TEST(TrayStatusBar, DrawsTheIconInEverySize)
{
    const QIcon icon = SymbolIcon::load(QStringLiteral("MenubarIcon"));
    ASSERT_FALSE(icon.isNull());
    for (const int side : {16, 22, 48}) {
        const QImage image = icon.pixmap(side, side).toImage();
        int inked = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                inked += image.pixelColor(x, y).alpha() > 128;
        }
        const double share = static_cast<double>(inked) / (image.width() * image.height());
        EXPECT_GT(share, 0.15) << side;
        EXPECT_LT(share, 0.6) << side;
    }
}
