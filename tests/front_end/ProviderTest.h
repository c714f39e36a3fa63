// SPDX-License-Identifier: MIT
// ProviderTest is the fixture of tests that use the whole program like the desktop: the real service provider
// and the real counting service on a private bus, real windows on the private display.
// Thread: main.
#pragma once

#include "platform/services/ServiceMessageSender.h"
#include "tests/counting_service/CountingServiceTest.h"
#include "tests/harness/Display.h"
#include "tests/harness/Screenshot.h"

#include <QRect>
#include <QString>

class ProviderTest : public CountingServiceTest {
protected:
    ProviderTest();
    /// Ends the provider and waits until it has exited.
    ~ProviderTest() override;

    /// Requests the counts of a text, like the command. Returns the service's error message, or an empty
    /// text.
    static QString count(const QString &text);
    static QString ask(const QString &message, const Pasteboard &pasteboard, const QVariantMap &options = {});

    /// The process that owns the provider's name; 0 for none.
    [[nodiscard]] pid_t provider() const;
    /// Starts the provider without a request.
    void startProvider() const;
    void waitForEnd(pid_t process) const;

    /// The identifiers of the windows with that title, lowest first, according to the window manager.
    static QStringList windows(const QString &title = QStringLiteral("Quillbay"));
    /// Waits until there are so many, or fails the test.
    static QStringList waitForWindows(qsizetype number, const QString &title = QStringLiteral("Quillbay"));
    /// In pixels from the top left.
    static QRect rectOf(const QString &window);
    static QString activeWindow();
    /// Moves the pointer there, in pixels from the window's top left, and clicks.
    static void click(const QString &window, int x, int y);
    static void press(const char *key);
    /// Drags by 120 pixels to the right and 60 up, as far as the window moves. place: in the window, from its
    /// top left.
    static void drag(const QString &window, const QPoint &place);

    static bool showsNumbers(const QString &window);
    /// Waits until the window shows numbers.
    static void waitForNumbers(const QString &window);
    /// What Ctrl+C copies from the active window.
    static QString copied();
};
