// SPDX-License-Identifier: MIT
#include "tests/platform/views/widgets/ShownWindow.h"

namespace {

void xrandr(const QByteArray &arguments)
{
    TestDisplay::outputOf(QStringLiteral("xrandr"), QString::fromLatin1(arguments).split(u' '));
}

/// The private display with fewer rows of pixels than it starts with.
class LowerScreen {
public:
    explicit LowerScreen(int height)
    {
        const QByteArray timings = "60 1280 1300 1310 1320 " + QByteArray::number(height) + " 810 820 830";
        xrandr("--newmode lower " + timings);
        xrandr("--addmode screen lower");
        xrandr("--output screen --mode lower");
    }
    LowerScreen(const LowerScreen &) = delete;
    LowerScreen &operator=(const LowerScreen &) = delete;
    ~LowerScreen()
    {
        xrandr("--output screen --mode 1280x800");
        xrandr("--delmode screen lower");
        xrandr("--rmmode lower");
        EXPECT_TRUE(waitUntil([] { return QGuiApplication::primaryScreen()->geometry().height() == 800; }));
    }
};

QByteArray propertyOf(const ShownWindow &shown, const char *name)
{
    return TestDisplay::outputOf(
        QStringLiteral("xprop"), {QStringLiteral("-id"), shown.identifier(), QString::fromLatin1(name)});
}

} // namespace

TEST(WindowWidget, PutsTheContentAtTheFrame)
{
    for (const unsigned style : {0U, Window::titled, Window::titled | Window::resizable}) {
        const ShownWindow shown({100, 200, 300, 150}, style);
        shown.show();
        EXPECT_EQ(shown.frameOnDisplay(), QRectF(100, 200, 300, 150)) << style;
        EXPECT_EQ(shown.window().frame(), QRectF(100, 200, 300, 150)) << style;
    }
}

TEST(WindowWidget, AWindowThatChangesItsSizeKeepsItsBottomLeftCorner)
{
    for (const unsigned style : {0U, Window::titled, Window::titled | Window::resizable}) {
        ShownWindow shown({100, 200, 300, 150}, style);
        shown.show();
        for (const QSizeF size :
            {QSizeF(300, 170), QSizeF(290, 60), QSizeF(290, 400), QSizeF(291, 399), QSizeF(40, 10)}) {
            shown.window().setFrame({{100, 200}, size}, true, false);
            EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay() == shown.window().frame(); }))
                << style << " " << size.height();
            EXPECT_EQ(shown.window().frame(), QRectF({100, 200}, size));
            EXPECT_TRUE(waitUntil([&] { return QSizeF(shown.widget().size()) == size; }));
        }
    }
}

TEST(WindowWidget, AppliesTheLastOfManyChanges)
{
    ShownWindow shown({100, 200, 300, 150});
    shown.show();
    std::vector<QRectF> announced;
    QObject::connect(&shown.window(), &Window::frameDidChange, &shown.widget(),
        [&] { announced.push_back(shown.window().frame()); });
    for (int i = 0; i < 50; ++i)
        shown.window().setFrame({100, 200, 300, 150.0 + i}, true, false);
    EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay() == QRectF(100, 200, 300, 199); }));
    EXPECT_EQ(shown.window().frame(), QRectF(100, 200, 300, 199));
    EXPECT_EQ(announced.size(), 49U);
}

TEST(WindowWidget, FractionsOfTheFrameStayInTheWindow)
{
    ShownWindow shown({100.5, 200.25, 300.5, 150.5});
    shown.window().orderFront();
    EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay() == QRectF(101, 200, 301, 151); }));
    EXPECT_EQ(shown.window().frame(), QRectF(100.5, 200.25, 300.5, 150.5));
    EXPECT_EQ(shown.content().frame(), QRectF(0, 0, 300.5, 150.5));
}

TEST(WindowWidget, AWindowThatTheDesktopPlacesAdoptsItsPlaceAndKeepsItWhenItGrows)
{
    ShownWindow shown({1200, 10, 300, 150});
    shown.window().setPlacedByDesktop(true);
    shown.window().orderFront();
    shown.window().setFrame({1200, 10, 300, 180}, false, false); // before the desktop has answered
    EXPECT_TRUE(waitUntil([&] { return shown.window().frame().topLeft() != QPointF(1200, 10); }));
    EXPECT_EQ(shown.frameOnDisplay(), shown.window().frame());
    EXPECT_EQ(shown.window().frame().size(), QSizeF(300, 180));
    const QPointF origin = shown.window().frame().topLeft();
    shown.window().setFrame({origin, QSizeF(320, 200)}, false, false);
    EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay() == QRectF(origin, QSizeF(320, 200)); }));
}

TEST(WindowWidget, TheFrameFollowsTheUser)
{
    ShownWindow shown({100, 200, 300, 150}, Window::titled | Window::resizable, WindowLevel::Normal);
    shown.show();
    const QString window = shown.identifier();
    TestDisplay::xdotool(
        {QStringLiteral("windowsize"), window, QStringLiteral("360"), QStringLiteral("190")});
    EXPECT_TRUE(waitUntil([&] { return shown.window().frame().size() == QSizeF(360, 190); }));
    EXPECT_EQ(shown.content().frame(), QRectF(0, 0, 360, 190));
    TestDisplay::xdotool({QStringLiteral("windowmove"), window, QStringLiteral("500"), QStringLiteral("50")});
    EXPECT_TRUE(waitUntil([&] { return shown.window().frame().x() >= 500; }));
    EXPECT_TRUE(waitUntil([&] { return shown.window().frame() == shown.frameOnDisplay(); }));
    EXPECT_EQ(shown.window().frame().size(), QSizeF(360, 190));
}

TEST(WindowWidget, AWindowThatIsNotResizableKeepsItsSize)
{
    ShownWindow shown({100, 200, 300, 150}, Window::titled);
    shown.show();
    EXPECT_THAT(propertyOf(shown, "WM_NORMAL_HINTS").toStdString(),
        ::testing::AllOf(::testing::HasSubstr("minimum size: 300 by 150"),
            ::testing::HasSubstr("maximum size: 300 by 150")));
    shown.window().setStyleMask(Window::titled | Window::resizable);
    EXPECT_TRUE(waitUntil(
        [&] { return !propertyOf(shown, "WM_NORMAL_HINTS").contains("maximum size: 300 by 150"); }));
    EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay() == QRectF(100, 200, 300, 150); }));
}

TEST(WindowWidget, AWindowStaysOnTheScreenWhoseHeightChanges)
{
    ShownWindow shown({100, 500, 300, 150});
    shown.show();
    {
        const LowerScreen lower(600);
        EXPECT_TRUE(waitUntil([&] { return shown.window().frame() == QRectF(100, 300, 300, 150); }));
        EXPECT_EQ(shown.frameOnDisplay(), QRectF(100, 300, 300, 150));
    }
    EXPECT_TRUE(waitUntil([&] { return shown.window().frame() == QRectF(100, 500, 300, 150); }));
}

TEST(WindowWidget, HasTheStyleAndLevelOfTheWindow)
{
    ShownWindow shown({100, 200, 300, 150});
    shown.show();
    const auto has = [&shown](
                         Qt::WindowFlags flags) { return (shown.widget().windowFlags() & flags) == flags; };
    EXPECT_TRUE(has(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint));
    EXPECT_THAT(
        propertyOf(shown, "_NET_WM_STATE").toStdString(), ::testing::HasSubstr("_NET_WM_STATE_ABOVE"));
    EXPECT_THAT(propertyOf(shown, "_NET_FRAME_EXTENTS").toStdString(), ::testing::HasSubstr("0, 0, 0, 0"));

    shown.window().setStyleMask(Window::titled | Window::closable);
    EXPECT_TRUE(waitUntil([&] { return shown.frameOnDisplay() == QRectF(100, 200, 300, 150); }))
        << shown.describe();
    EXPECT_TRUE(has(Qt::WindowTitleHint | Qt::WindowCloseButtonHint));
    EXPECT_FALSE(has(Qt::FramelessWindowHint));
    EXPECT_FALSE(has(Qt::WindowMinimizeButtonHint));
    shown.window().setStyleMask(Window::titled | Window::miniaturizable);
    EXPECT_TRUE(has(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(has(Qt::WindowCloseButtonHint));

    shown.window().setLevel(WindowLevel::Normal);
    EXPECT_FALSE(has(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(shown.widget().windowType(), Qt::Window);
    EXPECT_TRUE(shown.widget().isVisible());
    EXPECT_TRUE(waitUntil([&] { return !propertyOf(shown, "_NET_WM_STATE").contains("ABOVE"); }));
}

TEST(WindowWidget, OnlyAKeyWindowTakesTheFocus)
{
    ShownWindow key({100, 200, 300, 150});
    key.show();
    EXPECT_TRUE(waitUntil([&] { return key.widget().isActiveWindow(); }));
    const auto plain = std::make_shared<Window>(QRectF(500, 200, 300, 150));
    WindowWidget plainWidget(plain);
    plain->orderFront();
    EXPECT_TRUE(waitUntil([&] { return plainWidget.windowHandle()->isExposed(); }));
    EXPECT_TRUE(plainWidget.windowFlags() & Qt::WindowDoesNotAcceptFocus);
    EXPECT_TRUE(key.widget().isActiveWindow());
}

TEST(WindowWidget, ShowsAndHidesWithTheWindow)
{
    const ShownWindow shown({100, 200, 300, 150});
    EXPECT_FALSE(shown.widget().isVisible());
    shown.show();
    EXPECT_TRUE(shown.widget().isVisible());
    shown.window().orderOut();
    EXPECT_FALSE(shown.widget().isVisible());
    shown.window().setFrame({150, 250, 320, 160}, false, false);
    shown.show();
    EXPECT_EQ(shown.frameOnDisplay(), QRectF(150, 250, 320, 160));
}

TEST(WindowWidget, ACloseRequestGoesToTheWindow)
{
    ShownWindow shown({100, 200, 300, 150}, Window::titled | Window::closable, WindowLevel::Normal);
    shown.show();
    EXPECT_TRUE(waitUntil([&] { return shown.widget().isActiveWindow(); }));
    int requests = 0;
    QObject::connect(&shown.window(), &Window::closeRequested, &shown.widget(), [&requests] { ++requests; });
    shown.window().setClosesOnRequest(false);
    // A busy window manager may not have set the focus yet: the keys are pressed repeatedly.
    const auto pressUntil = [](const std::function<bool()> &condition) {
        return waitUntil([&condition] {
            if (!condition())
                TestDisplay::xdotool({QStringLiteral("key"), QStringLiteral("alt+F4")});
            return condition();
        });
    };
    EXPECT_TRUE(pressUntil([&] { return requests > 0; }));
    EXPECT_TRUE(shown.widget().isVisible());
    shown.window().setClosesOnRequest(true);
    EXPECT_TRUE(pressUntil([&] { return !shown.widget().isVisible(); }));
    EXPECT_FALSE(shown.window().isVisible());
    EXPECT_GE(requests, 2);
}

TEST(WindowWidget, HasTheTitleOfTheWindow)
{
    const ShownWindow shown({100, 200, 300, 150}, Window::titled);
    shown.window().setTitle(QStringLiteral("Statistics"));
    EXPECT_EQ(shown.widget().windowTitle(), QStringLiteral("Statistics"));
}
