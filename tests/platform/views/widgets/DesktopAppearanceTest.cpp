// SPDX-License-Identifier: MIT
#include "platform/views/widgets/DesktopAppearance.h"
#include "platform/views/Controls.h"
#include "tests/harness/FakePortal.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/harness/Screenshot.h"
#include "tests/platform/views/widgets/ShownWindow.h"

#include <QPalette>

namespace {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// Adds one of each view that a theme colours.
Label &fill(const ShownWindow &shown)
{
    auto &label = shown.add<Label>("label", {20, 110, 200, 20});
    label.setStringValue(QStringLiteral("1,234 words"));
    shown.add<Label>("characters", {20, 84.5, 200, 20}).setStringValue(QStringLiteral("5,678 characters"));
    shown.add<Box>("line", {20, 65, 260, 9}).setKind(Box::Kind::Separator);
    shown.add<Button>("button", {20, 20, 90, 28}).setTitle(QStringLiteral("Count"));
    auto &disabled = shown.add<Button>("disabled", {120, 20, 90, 28});
    disabled.setTitle(QStringLiteral("Pause"));
    disabled.setEnabled(false);
    shown.add<ProgressIndicator>("spinner", {250, 20, 28, 28}).startAnimation();
    return label;
}

} // namespace

class DesktopAppearanceTest : public QuillbayTest {
protected:
    DesktopAppearanceTest()
        : m_bus(QDBusConnection::connectToBus(SessionBus::start(), QStringLiteral("program")))
    {
    }
    ~DesktopAppearanceTest() override
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("program"));
        applyColorScheme(ColorScheme::NoPreference);
    }

    QDBusConnection m_bus;
};

TEST_F(DesktopAppearanceTest, UsesTheSchemeOfTheDesktop)
{
    const QPalette own = QApplication::palette();
    FakePortal portal(1);
    const DesktopAppearance appearance(m_bus);
    EXPECT_EQ(appearance.colorScheme(), ColorScheme::NoPreference);
    EXPECT_TRUE(waitUntil([&] { return appearance.colorScheme() == ColorScheme::Dark; }));
    EXPECT_TRUE(isDark(QApplication::palette()));
    portal.change(0);
    EXPECT_TRUE(waitUntil([&] { return appearance.colorScheme() == ColorScheme::NoPreference; }));
    EXPECT_EQ(QApplication::palette(), own);
}

TEST_F(DesktopAppearanceTest, FollowsTheSchemeWhileWindowsAreOpen)
{
    FakePortal portal(2);
    const DesktopAppearance appearance(m_bus);
    const ShownWindow shown({100, 200, 300, 150});
    const Label &label = fill(shown);
    shown.show();
    EXPECT_TRUE(waitUntil([&] { return appearance.colorScheme() == ColorScheme::Light; }));
    EXPECT_FALSE(isDark(shown.widgetOf(label).palette()));
    const auto background = [&] { return shown.widget().grab().toImage().pixelColor(280, 10).lightness(); };
    EXPECT_GT(background(), 200);
    saveScreenshot(QStringLiteral("appearance-light"));
    portal.change(1);
    EXPECT_TRUE(waitUntil([&] { return isDark(shown.widgetOf(label).palette()); }));
    EXPECT_LT(background(), 80);
    EXPECT_TRUE(waitUntil([] { return takeScreenshot().pixelColor(390, 460).lightness() < 80; }));
    saveScreenshot(QStringLiteral("appearance-dark"));
    portal.change(2);
    EXPECT_TRUE(waitUntil([&] { return !isDark(shown.widgetOf(label).palette()); }));
}

TEST_F(DesktopAppearanceTest, KeepsADesktopPaletteOfTheWantedScheme)
{
    const QPalette own = QApplication::palette();
    ASSERT_FALSE(isDark(own));
    const FakePortal portal(2);
    const DesktopAppearance appearance(m_bus);
    EXPECT_TRUE(waitUntil([&] { return appearance.colorScheme() == ColorScheme::Light; }));
    EXPECT_EQ(QApplication::palette(), own);
}

TEST_F(DesktopAppearanceTest, KeepsThePaletteUntilAPortalStarts)
{
    const QPalette own = QApplication::palette();
    const RecordingLogSink log;
    const DesktopAppearance appearance(m_bus);
    EXPECT_TRUE(waitUntil([&] { return !log.messages().isEmpty(); }));
    EXPECT_THAT(log.messages().constFirst().toStdString(),
        ::testing::HasSubstr("Cannot read the desktop's colour scheme"));
    EXPECT_EQ(QApplication::palette(), own);
    const FakePortal portal(1);
    EXPECT_TRUE(waitUntil([&] { return appearance.colorScheme() == ColorScheme::Dark; }));
}

TEST_F(DesktopAppearanceTest, KeepsThePaletteWithoutABus)
{
    const QPalette own = QApplication::palette();
    const DesktopAppearance appearance(QDBusConnection(QStringLiteral("no such connection")));
    EXPECT_EQ(appearance.colorScheme(), ColorScheme::NoPreference);
    EXPECT_EQ(QApplication::palette(), own);
}

TEST_F(DesktopAppearanceTest, IgnoresOtherSettingsAndInvalidValues)
{
    FakePortal portal(1);
    const DesktopAppearance appearance(m_bus);
    EXPECT_TRUE(waitUntil([&] { return appearance.colorScheme() == ColorScheme::Dark; }));
    portal.send(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("contrast"), 2U);
    portal.send(QStringLiteral("org.example"), QStringLiteral("color-scheme"), 2U);
    int changes = 0;
    QObject::connect(
        &appearance, &DesktopAppearance::colorSchemeDidChange, &portal, [&changes] { ++changes; });
    portal.send(
        QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"), QStringLiteral("dark"));
    EXPECT_TRUE(waitUntil([&] { return changes > 0; }));
    EXPECT_EQ(appearance.colorScheme(), ColorScheme::NoPreference);
    EXPECT_EQ(changes, 1);
    portal.change(7);
    portal.change(1);
    EXPECT_TRUE(waitUntil([&] { return changes > 1; }));
    EXPECT_EQ(appearance.colorScheme(), ColorScheme::Dark);
}
