// SPDX-License-Identifier: MIT
// ShownWindow is a window on the private display with its widget, and its state according to the display.
// Thread: main.  Owner: the test.
#pragma once

#include "platform/views/View.h"
#include "platform/views/Window.h"
#include "platform/views/widgets/WindowWidget.h"
#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"

#include <QApplication>
#include <QRegularExpression>
#include <QScreen>
#include <QWindow>

/// Takes the focus in every style, like the windows of the product.
class KeyWindow : public Window {
public:
    using Window::Window;
    [[nodiscard]] bool canBecomeKeyWindow() const override { return true; }
    [[nodiscard]] bool canBecomeMainWindow() const override { return true; }
};

class ShownWindow {
public:
    explicit ShownWindow(
        const QRectF &frame, unsigned styleMask = 0, WindowLevel level = WindowLevel::Floating)
        : m_window(std::make_shared<KeyWindow>(frame, styleMask))
        , m_content(std::make_shared<View>())
    {
        m_window->setLevel(level);
        m_window->setContentView(m_content);
        m_widget = std::make_unique<WindowWidget>(m_window);
    }

    /// Returns once the window manager has put the window on the screen.
    void show() const
    {
        m_window->orderFront();
        EXPECT_TRUE(waitUntil([this] { return m_widget->windowHandle()->isExposed(); }));
        EXPECT_TRUE(waitUntil([this] { return frameOnDisplay() == m_window->frame(); })) << describe();
    }

    /// The identifier for xprop and the like. Waits for the display first, by reading a pixel: a change of
    /// style makes a new window.
    [[nodiscard]] QString identifier() const
    {
        const QString number = QString::number(m_widget->windowHandle()->winId());
        EXPECT_FALSE(QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1, 1).isNull());
        return number;
    }

    /// The frame without the title bar, in points from the bottom left, according to the display.
    [[nodiscard]] QRectF frameOnDisplay() const
    {
        const QString info = QString::fromLatin1(
            TestDisplay::outputOf(QStringLiteral("xwininfo"), {QStringLiteral("-id"), identifier()}));
        const auto number = [&info](const char *label) {
            const QRegularExpression pattern(QString::fromLatin1(label) + QStringLiteral(": +(-?\\d+)"));
            return pattern.match(info).captured(1).toDouble();
        };
        const double height = number("Height");
        const double screen = QGuiApplication::primaryScreen()->geometry().height();
        return {number("Absolute upper-left X"), screen - number("Absolute upper-left Y") - height,
            number("Width"), height};
    }

    /// Converts a point of the window, from its bottom left, to arguments of xdotool.
    [[nodiscard]] QStringList pointerTo(double x, double y) const
    {
        const QRectF frame = m_window->frame();
        const double screen = QGuiApplication::primaryScreen()->geometry().height();
        return {QStringLiteral("mousemove"), QString::number(frame.x() + x),
            QString::number(screen - frame.y() - y)};
    }

    [[nodiscard]] Window &window() const { return *m_window; }
    [[nodiscard]] View &content() const { return *m_content; }
    [[nodiscard]] const std::shared_ptr<View> &contentShared() const { return m_content; }
    [[nodiscard]] WindowWidget &widget() const { return *m_widget; }

    template <typename WidgetClass = QWidget>
    [[nodiscard]] WidgetClass &widgetOf(const View &view) const
    {
        return *m_widget->findChild<WidgetClass *>(view.identifier());
    }

    /// Adds a view of that class with that name and frame to the content.
    template <typename ViewClass>
    ViewClass &add(const char *name, const QRectF &frame) const
    {
        auto view = std::make_shared<ViewClass>();
        view->setFrame(frame);
        view->setIdentifier(QString::fromLatin1(name));
        m_content->addSubview(view);
        return *view;
    }

    [[nodiscard]] std::string describe() const
    {
        const QRectF frame = frameOnDisplay();
        return QStringLiteral("on the display at %1, %2 with %3 by %4")
            .arg(frame.x())
            .arg(frame.y())
            .arg(frame.width())
            .arg(frame.height())
            .toStdString();
    }

private:
    std::shared_ptr<KeyWindow> m_window;
    std::shared_ptr<View> m_content;
    std::unique_ptr<WindowWidget> m_widget;
};
