// SPDX-License-Identifier: MIT
// DeskTest is the fixture of tests of the main window in this process, on the private display and bus, with
// the clicks and keys of a user.
// Thread: main.
#pragma once

#include "desk/DeskWindow.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/harness/Screenshot.h"

#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>
#include <QWidget>
#include <QWindow>

#include <optional>

class DeskTest : public QuillbayTest {
protected:
    using Controller = QBYUserDefaultsController;

    DeskTest()
    {
        SessionBus::start();
        TestDisplay::start();
        takeLocaleFromEnvironment();
        Controller::configureUserDefaultsOnApplicationLaunch();
    }

    /// Returns once the window has the focus. speech: the speech command. page: the name of the widget.
    DeskWindow &open(
        const QString &speech = QStringLiteral("/nonexistent/say"), const char *page = "RulesPage")
    {
        m_window.emplace(speech);
        showPage(page);
        m_window->show();
        m_window->activateWindow();
        EXPECT_TRUE(waitUntil([this] { return m_window->isActiveWindow(); }));
        return *m_window;
    }
    void close() { m_window.reset(); }
    void showPage(const char *name)
    {
        control<QListWidget>("pageList")
            .setCurrentRow(control<QStackedWidget>("pageStack").indexOf(&control<QWidget>(name)));
    }

    template <typename Widget>
    Widget &control(const char *name)
    {
        auto *const found = m_window->findChild<Widget *>(QString::fromLatin1(name));
        if (!found)
            throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }

    /// Clicks on the control's left part, as a user does who has scrolled there.
    static void click(QWidget &control)
    {
        for (QWidget *parent = control.parentWidget(); parent; parent = parent->parentWidget()) {
            if (auto *const area = qobject_cast<QScrollArea *>(parent))
                area->ensureWidgetVisible(&control);
        }
        const QPoint place = control.mapToGlobal(QPoint(12, control.height() / 2));
        TestDisplay::xdotool({QStringLiteral("mousemove"), QString::number(place.x()),
            QString::number(place.y()), QStringLiteral("click"), QStringLiteral("1")});
    }
    static void press(const char *keys)
    {
        TestDisplay::xdotool({QStringLiteral("key"), QString::fromLatin1(keys)});
    }

    std::optional<DeskWindow> m_window;
};
